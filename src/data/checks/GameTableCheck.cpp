#include "data/checks/GameTableCheck.h"

#include "data/folder/ShownText.h"
#include "data/folder/TableOnFile.h"
#include "history/DrawRecord.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "state/MendedFolder.h"

#include <algorithm>
#include <array>
#include <functional>

namespace ballhaven::data {

namespace {

constexpr int highestNumber = 99;
constexpr const char* takenForOrdinary =
    "Ballhaven takes the folder for an ordinary one. If it was a mended one, mark it again with \"ballhaven-data "
    "mend\".";
constexpr const char* alterIt = "Choose it in Ballhaven with \"Alter Game Configuration\".";

// Record 1.
constexpr RecordField systemDigit{6, 1};
constexpr std::array systemSeparators{3, 5, 7};

std::vector<RecordField> SystemFields() {
    std::vector<RecordField> fields{systemField::shownSlot, systemField::sortOrder, systemDigit,
                                    systemField::printSelections, systemField::mendedMark};
    for (const int column : systemSeparators) {
        fields.push_back({column, 1});
    }
    return fields;
}

std::vector<RecordField> GameFields() {
    std::vector<RecordField> fields{gameField::slot,           gameField::name,       gameField::historySet,
                                    gameField::gameType,       gameField::mainLow,    gameField::mainHigh,
                                    gameField::duplicates,     gameField::order,      gameField::mainPickCount,
                                    gameField::bonusPickCount, gameField::conversion, gameField::olderText,
                                    gameField::bonusLow,       gameField::bonusHigh};
    for (const int column : gameField::separators) {
        fields.push_back({column, 1});
    }
    return fields;
}

bool IsWithin(std::optional<int> number, int low, int high) {
    return number && *number >= low && *number <= high;
}

bool IsBinary(const std::string& text) {
    return text == "0" || text == "1";
}

/// Whether there are numbers to draw from.
bool HasLimits(const GameRules& rules) {
    return rules.mainHigh > rules.mainLow && (!HasBonus(rules.gameType) || rules.bonusHigh > rules.bonusLow);
}

/// The program's own record as it is read where zero bytes stand there.
std::string SettingsOfZeros() {
    std::string record = NewSystemRecord();
    SetField(record, systemField::sortOrder, "0");
    return record;
}

/// Looks at one record after the other, the one at hand being `record`.
class TableCheck {
  public:
    TableCheck(Examination& fileExamination, bool drawsKeepFiveDigits)
        : examination(fileExamination), drawsAreMarked(drawsKeepFiveDigits) {}

    void CheckSystemRecord() {
        Begin(systemRecordNumber, "settings");
        Replace(SettingsOfZeros(), "Ballhaven reads them as unset, and shows slot 1.");
        if (!examination.IsText("Ballhaven reads what settings it finds there. Restore a copy.")) {
            return;
        }
        if (!IsWithin(NumberAmongBlanks(Text(systemField::shownSlot)), 1, gameSlots)) {
            examination.MendField({systemField::shownSlot, "slot shown last"}, "01", "Ballhaven takes it for slot 1.");
        }
        CheckSeparators(systemSeparators);
        if (!IsBinary(Text(systemField::sortOrder))) {
            const bool oldestFirst = FieldValue(record, systemField::sortOrder) != 0;
            examination.MendField({systemField::sortOrder, "order of the log"}, oldestFirst ? "1" : "0",
                                  oldestFirst ? "Ballhaven reads it as the oldest draw first."
                                              : "Ballhaven reads it as the newest draw first.");
        }
        if (!NumberAmongBlanks(Text(systemDigit))) {
            examination.MendField({systemDigit, "a digit that nothing reads"}, "1", "");
        }
        CheckPrintSelections();
        CheckMendedMark();
        examination.MendUnused(systemColumns, StrayDigits::Blank);
    }

    CheckedSlot CheckSlot(int slot) {
        Begin(slot + 1, "slot " + std::to_string(slot));
        Replace(BuildDefaultGameRecord(slot, 0), "The slot becomes an unused one; a copy may still have its game.");
        if (!examination.IsText("Set the game up again, or restore a copy.")) {
            return {slot};
        }
        rulesAreKnown = true;
        CheckGame(slot);
        const std::string present = InPresentForm(record);
        if (CountsAsFree(present)) {
            return {slot, SlotUse::Free};
        }
        return {slot, SlotUse::Game, rulesAreKnown ? std::optional(RulesOf(present)) : std::nullopt};
    }

  private:
    void CheckGame(int slot) {
        if (InPresentForm(record) != record && FieldText(record, gameField::gameType).find_first_of("NC") == 0) {
            examination.Remark("is of the older form", "Ballhaven brings it to the present form when it is shown.");
            return;
        }
        Begin(slot + 1, SubjectOf(slot));
        CheckSeparators(gameField::separators);
        if (!IsWithin(NumberAmongBlanks(Text(gameField::slot)), 1, gameSlots)) {
            examination.MendField({gameField::slot, "number of the slot"},
                                  modUTILS::FixedWidth(std::to_string(slot), gameField::slot.width),
                                  "Nothing reads it.");
        }
        if (IsBlank(Text(gameField::name))) {
            examination.LeaveField({gameField::name, "name"}, "no name", alterIt);
        }
        CheckHistorySet(slot);
        CheckRules();
        CheckConversionMark();
        if (!IsBlank(Text(gameField::olderText))) {
            examination.MendField({gameField::olderText, "text of the older form"}, "  ", "Nothing reads it.");
        }
        examination.MendUnused(gameColumns, StrayDigits::Blank);
    }

    [[nodiscard]] std::string Text(RecordField field) const { return FieldText(record, field); }

    void Begin(int number, const std::string& subject) {
        examination.BeginRecord(number, subject);
        record = examination.Record(number);
    }

    void Replace(const std::string& right, const std::string& meaning) {
        examination.MendZeroRecord(right, meaning);
        record = examination.Record(examination.CurrentRecord());
    }

    [[nodiscard]] std::string SubjectOf(int slot) const {
        return "slot " + std::to_string(slot) + ", " + ShownWindows1252(modUTILS::Trimmed(GameName(record)));
    }

    template <typename Columns>
    void CheckSeparators(const Columns& columns) {
        for (const int column : columns) {
            if (const RecordField field{column, 1}; Text(field) != "/") {
                examination.MendField({field, "separator"}, "/", "Nothing reads it.");
            }
        }
    }

    void CheckPrintSelections() {
        std::string selections = Text(systemField::printSelections);
        const auto isBinary = [](char mark) { return mark == '0' || mark == '1'; };
        if (!std::ranges::all_of(selections, isBinary)) {
            std::ranges::replace_if(selections, std::not_fn(isBinary), '0');
            examination.MendField({systemField::printSelections, "selections for printing"}, selections,
                                  "Ballhaven takes any mark but 1 for no selection.");
        }
    }

    void CheckMendedMark() {
        const NamedField field{systemField::mendedMark, "mark of a mended folder"};
        const std::string mark = Text(field.columns);
        if (IsMended(record) || mark == " ") {
            return;
        }
        if (drawsAreMarked) {
            examination.LeaveField(field, "neither \"M\" nor blank", takenForOrdinary);
        } else {
            examination.MendField(field, " ", "The folder is not mended.");
        }
    }

    void CheckHistorySet(int slot) {
        const std::string text = Text(gameField::historySet);
        const std::optional<int> size = NumberAmongBlanks(text);
        if (text != "000" && (!IsWithin(size, smallestHistorySet, largestHistorySet) || *size % historySetStep != 0)) {
            examination.LeaveField({gameField::historySet, "history set"}, "none that can be chosen",
                                   "Choose one in Ballhaven, or with \"ballhaven-data set " + std::to_string(slot) +
                                       " --history-set 100\".");
        }
    }

    void CheckRules() {
        const auto leftBefore = examination.LeftCount();
        CheckKind();
        rulesAreKnown = examination.LeftCount() == leftBefore && HasLimits(RulesOf(record));
    }

    void CheckKind() {
        if (!IsWithin(NumberAmongBlanks(Text(gameField::gameType)), 0, lastGameType)) {
            examination.LeaveField({gameField::gameType, "kind of game"}, "no kind from 0 to 5", alterIt);
            return;
        }
        const GameRules rules = RulesOf(record);
        CheckYesOrNo(gameField::duplicates, "duplicates allowed");
        CheckYesOrNo(gameField::order, "order matters");
        CheckCounts(rules);
        CheckLimits(rules);
    }

    void CheckYesOrNo(RecordField field, const std::string& name) {
        const std::string text = Text(field);
        if (text != "Y" && text != "N") {
            examination.LeaveField({field, name}, "neither Y nor N",
                                   "Ballhaven reads it as N. " + std::string(alterIt));
        }
    }

    void CheckCounts(const GameRules& rules) {
        const NamedField mainCount{gameField::mainPickCount, "main picks of a draw"};
        const NamedField bonusCount{gameField::bonusPickCount, "bonus picks of a draw"};
        if (!IsWithin(NumberAmongBlanks(Text(mainCount.columns)), 1, mostPicksOfDraw)) {
            examination.LeaveField(mainCount, "outside 1 to 10", alterIt);
        } else if (!NumberAmongBlanks(Text(bonusCount.columns))) {
            examination.LeaveField(bonusCount, "no number", alterIt);
        } else if (TotalPicksOf(rules) > mostPicksOfDraw) {
            examination.LeaveField(bonusCount, "more than a draw of 10 picks has left", alterIt);
        }
    }

    void CheckLimits(const GameRules& rules) {
        if (IsCardGame(rules.gameType)) {
            return;  // 1 and 52, whatever the record says
        }
        CheckLowest(gameField::mainLow, "lowest main pick");
        CheckHighest(gameField::mainHigh, "highest main pick");
        if (HasBonus(rules.gameType)) {
            CheckLowest(gameField::bonusLow, "lowest bonus pick");
            CheckHighest(gameField::bonusHigh, "highest bonus pick");
        }
    }

    void CheckLowest(RecordField field, const std::string& name) {
        if (!IsBinary(Text(field))) {
            examination.LeaveField({field, name}, "neither 0 nor 1", alterIt);
        }
    }

    // A highest pick of 0 comes from the dialog, where so many picks may repeat that no number is left to choose.
    void CheckHighest(RecordField field, const std::string& name) {
        if (!IsWithin(NumberAmongBlanks(Text(field)), 0, highestNumber)) {
            examination.LeaveField({field, name}, "no number", alterIt);
        }
    }

    void CheckConversionMark() {
        if (HasConversionMark(record)) {
            return;
        }
        const RecordField digit{gameField::conversion.first, 1};
        if (NumberAmongBlanks(Text(digit))) {
            examination.Remark("has a mark of the older form",
                               "Ballhaven brings it to the present form when it is shown.");
        } else {
            examination.MendField({gameField::conversion, "mark of conversion"},
                                  FieldText(WithConversionMark(record), gameField::conversion),
                                  "Ballhaven puts it there when it shows the game.");
        }
    }

    Examination& examination;
    const bool drawsAreMarked;
    std::string record;
    bool rulesAreKnown = true;
    const std::vector<bool> systemColumns = ColumnsOf(SystemFields(), gameRecordLength);
    const std::vector<bool> gameColumns = ColumnsOf(GameFields(), gameRecordLength);
};

bool IsBuiltAnew(const FoundFile& found) {
    return found.length == 0 || found.length == gameRecordLength;
}

}  // namespace

CheckedTable CheckGameTable(const FoundFile& found, bool drawsAreMarked) {
    const FoundFile whole{found.form, WholeTable(found.bytes), found.length};
    Examination examination(whole);
    if (IsBuiltAnew(found)) {
        examination.Leave(found.length == 0 ? "has no games: it is empty" : "has no games: it ends after record 1",
                          "Ballhaven builds it anew with unused slots when it starts. If there were games, restore a "
                          "copy; draws and plays are in files of their own.");
        return {std::move(examination).Result(), SlotsWithoutTable(SlotUse::Free)};
    }
    CheckEnd(examination, found, "The slots that are missing become unused ones; a copy may still have their games.");
    TableCheck check(examination, drawsAreMarked);
    check.CheckSystemRecord();
    std::vector<CheckedSlot> slots;
    for (int slot = 1; slot <= gameSlots; ++slot) {
        slots.push_back(check.CheckSlot(slot));
    }
    const bool folderIsMended = IsMended(examination.Record(systemRecordNumber));
    return {std::move(examination).Result(), std::move(slots), folderIsMended};
}

std::vector<CheckedSlot> SlotsWithoutTable(SlotUse use) {
    std::vector<CheckedSlot> slots;
    for (int slot = 1; slot <= gameSlots; ++slot) {
        slots.push_back({slot, use});
    }
    return slots;
}

}  // namespace ballhaven::data
