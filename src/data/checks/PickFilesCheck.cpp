#include "data/checks/PickFilesCheck.h"

#include "data/folder/Picks.h"
#include "plays/PlayMethodCode.h"
#include "plays/PlayRecord.h"
#include "plays/PlaySlips.h"
#include "state/AppState.h"
#include "state/GameRules.h"
#include "wheels/ChosenRecord.h"

#include <algorithm>

namespace ballhaven::data {

namespace {

constexpr const char* lookAtIt = "An alteration of the game leaves such picks. Look at it in Ballhaven.";

std::string NameOfPick(PickColumn list, int slot) {
    return (list == mainPicks ? "main pick " : "bonus pick ") + std::to_string(slot);
}

bool IsMethodCode(const std::string& code) {
    return std::ranges::find(methodCodes, code) != methodCodes.end();
}

/// How many picks of a list belong to the plays of a slot's game; none where its rules are not known.
int PicksOf(const CheckedSlot& slot, PickColumn list) {
    if (!slot.rules) {
        return 0;
    }
    return list == mainPicks ? slot.rules->mainPickCount : BonusSlots(*slot.rules);
}

/// Looks at the fields of picks of a record at hand.
class PickFieldCheck {
  public:
    PickFieldCheck(Examination& fileExamination, const std::optional<GameRules>& ofGame)
        : examination(fileExamination), rules(ofGame) {}

    void Check(const std::string& record, RecordField columns, PickColumn list, int slot, bool ofTheGame) {
        const std::string text = FieldText(record, columns);
        if (IsBlank(text)) {
            return;
        }
        const NamedField field{columns, NameOfPick(list, slot)};
        if (const std::optional<int> pick = NumberAmongBlanks(text); !pick) {
            examination.LeaveField(
                field, "no number",
                "Ballhaven reads it as cell " + std::to_string(modUTILS::PickOfField(text)) + " of the board.");
        } else if (ofTheGame && rules && PickOnCell(*rules, list, *pick) == noPick) {
            examination.RemarkField(field, "no cell of the game's board", lookAtIt);
        }
    }

  private:
    Examination& examination;
    const std::optional<GameRules>& rules;
};

void CheckMethod(Examination& examination, const std::string& record, RecordField columns) {
    if (!IsMethodCode(FieldText(record, columns))) {
        examination.MendField({columns, "how the plays were made"}, methodCodes[byHand],
                              "Ballhaven takes them for made by hand.");
    }
}

std::vector<bool> PlayColumns() {
    std::vector<RecordField> fields{playField::method};
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            fields.push_back(playField::Pick(list, slot));
        }
    }
    return ColumnsOf(fields, playRecordLength);
}

std::vector<bool> ChosenColumns(int recordLength) {
    std::vector<RecordField> fields{chosenField::method};
    for (int pick = 1; pick <= chosenPicks; ++pick) {
        fields.push_back(chosenField::Pick(pick));
    }
    return ColumnsOf(fields, recordLength);
}

}  // namespace

CheckedFile CheckPlayFile(const FoundFile& found, const CheckedSlot& slot) {
    Examination examination(found);
    if (!CheckLength(examination, found, olderPlayFileRecords)) {
        return std::move(examination).Result();
    }
    const std::vector<bool> columns = PlayColumns();
    PickFieldCheck picks(examination, slot.rules);
    examination.MendZeros();
    for (int play = 1; play <= playCount; ++play) {
        const std::string record = examination.Record(play);
        if (IsBlank(record)) {
            continue;
        }
        examination.BeginRecord(play, "play " + NameOfPlay(play));
        if (!examination.IsText("Ballhaven reads what numbers it finds there. Look at the play.")) {
            continue;
        }
        CheckMethod(examination, record, playField::method);
        for (const PickColumn list : {mainPicks, bonusPicks}) {
            for (int pick = 1; pick <= picksPerPlay; ++pick) {
                picks.Check(record, playField::Pick(list, pick), list, pick, pick <= PicksOf(slot, list));
            }
        }
        examination.MendUnused(columns, StrayDigits::Leave);
    }
    return std::move(examination).Result();
}

CheckedFile CheckChosenPicksFile(const FoundFile& found, const std::vector<CheckedSlot>& slots) {
    Examination examination(found);
    if (!CheckLength(examination, found, olderChosenFileRecords)) {
        return std::move(examination).Result();
    }
    examination.MendZeros();
    const std::vector<bool> columns = ChosenColumns(found.form.recordLength);
    for (int recordNumber = 1; recordNumber <= 2 * gameSlots; ++recordNumber) {
        const PickColumn list = recordNumber <= gameSlots ? mainPicks : bonusPicks;
        const CheckedSlot& slot = slots[static_cast<std::size_t>((recordNumber - 1) % gameSlots)];
        const std::string record = examination.Record(recordNumber);
        examination.BeginRecord(recordNumber, std::string(list == mainPicks ? "main" : "bonus") +
                                                  " picks chosen in slot " + std::to_string(slot.slot));
        if (IsBlank(record) || !examination.IsText("Ballhaven reads what numbers it finds there.")) {
            continue;
        }
        CheckMethod(examination, record, chosenField::method);
        PickFieldCheck picks(examination, slot.rules);
        for (int pick = 1; pick <= chosenPicks; ++pick) {
            picks.Check(record, chosenField::Pick(pick), list, pick, PicksOf(slot, list) > 0);
        }
        examination.MendUnused(columns, StrayDigits::Leave);
    }
    return std::move(examination).Result();
}

}  // namespace ballhaven::data
