#include "data/checks/HistoryFileCheck.h"

#include "data/checks/HistoryRows.h"
#include "history/DrawRecord.h"
#include "state/AppState.h"
#include "state/GameRules.h"

#include <algorithm>

namespace ballhaven::data {

namespace {

constexpr int lowestOfFiveDigits = 10'000;

std::vector<RecordField> RowFields() {
    std::vector<RecordField> fields{drawField::Date(DateDigits::Five)};
    for (int pick = 1; pick <= mostPicksOfDraw; ++pick) {
        fields.push_back(drawField::Pick(pick));
    }
    return fields;
}

/// Lowest and highest pick of a column of draws.
struct Limits {
    int low, high;
};

Limits LimitsOf(const GameRules& rules, int pick) {
    return pick <= rules.mainPickCount ? Limits{rules.mainLow, rules.mainHigh}
                                       : Limits{rules.bonusLow, rules.bonusHigh};
}

/// The serial of a row's date; 0 where the program reads no draw.
int DateOf(const std::string& row, DateDigits digits) {
    std::int16_t cells[1] = {0};
    return DecodeDraw(row, digits, cells) ? cells[0] : 0;
}

/// What the rows of a file tell of how many digits their dates have, whatever its header says.
struct DateEvidence {
    int rows = 0;            ///< with a draw
    int fiveDigitRows = 0;   ///< with a digit behind the fourth
    int firstFiveDigit = 0;  ///< record of the first of them
    bool fourAscend = true;  ///< read with four digits
    bool fourDiffer = true;  ///< from the row before, read so
    bool fiveAscend = true;  ///< read with five digits, each of them a date of the program

    /// Whether the dates can have five digits alone: a digit that strayed into one row does not make a file of them.
    [[nodiscard]] bool MeansFive() const {
        const bool allHaveFive = rows > 1 && fiveDigitRows == rows;
        return fiveDigitRows > 0 && fiveAscend && (!fourAscend || (allHaveFive && !fourDiffer));
    }
    /// Whether a file that says four digits may have five.
    [[nodiscard]] bool ContradictsFour() const { return fiveDigitRows > 0 && !fourAscend; }
};

DateEvidence EvidenceOf(const Examination& examination) {
    DateEvidence evidence;
    int four = 0;
    int five = 0;
    for (int record = firstDrawRecord; record <= drawFileRecords; ++record) {
        const std::string row = examination.Record(record);
        const int nextFour = DateOf(row, DateDigits::Four);
        const int nextFive = DateOf(row, DateDigits::Five);
        if (nextFour == 0 && nextFive == 0) {
            continue;
        }
        ++evidence.rows;
        if (NumberAmongBlanks(FieldText(row, drawField::Date(DateDigits::Five))).value_or(0) >= lowestOfFiveDigits) {
            ++evidence.fiveDigitRows;
            evidence.firstFiveDigit = evidence.firstFiveDigit == 0 ? record : evidence.firstFiveDigit;
        }
        evidence.fourAscend = evidence.fourAscend && nextFour >= four;
        evidence.fourDiffer = evidence.fourDiffer && nextFour != four;
        evidence.fiveAscend = evidence.fiveAscend && nextFive > 0 && nextFive >= five;
        four = nextFour;
        five = nextFive;
    }
    return evidence;
}

class HistoryCheck {
  public:
    HistoryCheck(Examination& fileExamination, const CheckedSlot& ofSlot, bool mended)
        : examination(fileExamination), slot(ofSlot), folderIsMended(mended) {}

    void Run() {
        examination.MendZeros();
        evidence = EvidenceOf(examination);
        examination.BeginRecord(headerRecord, "header");
        if (examination.IsText("Nothing but the mark of dates with five digits is read there.")) {
            CheckHeader();
        }
        digits = DateDigitsOf(examination.Record(headerRecord));
        if (digits == DateDigits::Four && evidence.ContradictsFour()) {
            LeaveDoubt();
            return;
        }
        CheckRows();
    }

  private:
    void CheckRows() {
        std::vector<HistoryRow> rows;
        for (int record = firstDrawRecord; record <= drawFileRecords; ++record) {
            rows.push_back(CheckRow(record));
        }
        CheckRowOrder(examination, rows, digits, folderIsMended);
        examination.EndRecords();
        RemarkDrawsWithoutGame(rows);
    }

    void CheckHeader() {
        if (examination.Text(headerRecord, drawHeaderField::stamp) != drawFileStamp) {
            examination.MendField({drawHeaderField::stamp, "stamp of the form"}, drawFileStamp, "Nothing reads it.");
        }
        const std::string mark = examination.Text(headerRecord, drawHeaderField::digitsMark);
        if (mark != fiveDigitsMark && folderIsMended && evidence.MeansFive()) {
            examination.MendField({drawHeaderField::digitsMark, "mark of dates with five digits"}, fiveDigitsMark,
                                  "Without it the fifth digit of the dates, which stands there, is not read.");
        } else if (mark != fiveDigitsMark && mark != " ") {
            examination.MendField({drawHeaderField::digitsMark, "mark of dates with five digits"}, " ",
                                  "Dates have four digits here.");
        }
        examination.MendUnused(headerColumns, StrayDigits::Blank);
    }

    void LeaveDoubt() {
        examination.LeaveField({drawHeaderField::digitsMark, "mark of dates with five digits"}, "in doubt",
                               std::to_string(evidence.fiveDigitRows) + " of " + std::to_string(evidence.rows) +
                                   " dates have a fifth digit, the first in " +
                                   RecordsText(evidence.firstFiveDigit, evidence.firstFiveDigit) +
                                   ", and by the first four the draws are not in order. Ballhaven reads four digits, "
                                   "and drops the fifth when it next saves the draws. Restore a copy; or look at the "
                                   "draws in Ballhaven, put them right, save them, and check again. The rows were not "
                                   "looked at.");
    }

    HistoryRow CheckRow(int record) {
        const std::string found = examination.Record(record);
        if (IsBlank(found)) {
            return {record, 0, found};
        }
        const int date = DateOf(found, digits);
        examination.BeginRecord(record, date > 0 ? DrawSubject(date) : "");
        if (examination.IsText("Ballhaven reads what numbers it finds there. Look at the draw, and at a copy.")) {
            CheckDate(found);
            CheckPicks(record);
            examination.MendUnused(rowColumns, StrayDigits::Leave);
        }
        return {record, date, examination.Record(record)};
    }

    void CheckDate(const std::string& row) {
        const NamedField field{drawField::Date(digits), "date"};
        const std::optional<int> date = NumberAmongBlanks(FieldText(row, field.columns));
        const std::string words =
            "Ballhaven sees no draw here, and blanks the row when it next saves the game's draws: " +
            QuotedBytes(modUTILS::Trimmed(row)) + ".";
        if (!date) {
            const bool isRead = modUTILS::ValueOf(FieldText(row, field.columns)) > 0;
            examination.LeaveField(field, "no date", isRead ? "Ballhaven reads the digits before it." : words);
        } else if (*date < 1 || *date > LastDateOf(DateDigits::Five)) {
            examination.LeaveField(field, "outside the dates from 1984-01-02 to 2073-09-17", words);
        }
        CheckFifthDigit(row);
    }

    void CheckFifthDigit(const std::string& row) {
        if (digits == DateDigits::Five || FieldText(row, drawField::fifthDigit) == " ") {
            return;
        }
        if (NumberAmongBlanks(FieldText(row, drawField::Date(DateDigits::Five)))) {
            examination.LeaveField({drawField::Date(DateDigits::Five), "date"}, "a digit longer than this file's dates",
                                   "Ballhaven reads the first four.");
        } else {
            examination.MendField({drawField::fifthDigit, "blank behind the date"}, " ", "Nothing reads it.");
        }
    }

    void CheckPicks(int record) {
        const int picks = slot.rules ? TotalPicksOf(*slot.rules) : 0;
        for (int pick = 1; pick <= mostPicksOfDraw; ++pick) {
            const NamedField field{drawField::Pick(pick), "pick " + std::to_string(pick)};
            const std::string text = examination.Text(record, field.columns);
            if (IsBlank(text)) {
                continue;
            }
            if (const std::optional<int> value = NumberAmongBlanks(text); !value) {
                examination.LeaveField(field, "no number",
                                       "Ballhaven reads it as " + std::to_string(modUTILS::PickOfField(text)) + ".");
            } else if (pick <= picks) {
                CheckPick(field, *value, LimitsOf(*slot.rules, pick));
            }
        }
    }

    void CheckPick(const NamedField& field, int value, Limits limits) {
        if (value < limits.low || value > limits.high) {
            examination.RemarkField(
                field, "outside " + std::to_string(limits.low) + " to " + std::to_string(limits.high),
                "An alteration of the game leaves such picks. Type it again in Ballhaven if it is none of the draw's.");
        }
    }

    void RemarkDrawsWithoutGame(const std::vector<HistoryRow>& rows) {
        const auto draws = std::ranges::count_if(rows, [](const HistoryRow& row) { return row.date > 0; });
        if (slot.use == SlotUse::Free && draws > 0) {
            examination.Remark("holds " + std::to_string(draws) + " draws, and no game has been set up in slot " +
                                   std::to_string(slot.slot),
                               "They belong to the next game that is.");
        }
    }

    Examination& examination;
    const CheckedSlot& slot;
    bool folderIsMended;
    DateEvidence evidence;
    DateDigits digits = DateDigits::Four;
    const std::vector<bool> headerColumns =
        ColumnsOf({drawHeaderField::stamp, drawHeaderField::digitsMark}, drawRecordLength);
    const std::vector<bool> rowColumns = ColumnsOf(RowFields(), drawRecordLength);
};

}  // namespace

CheckedFile CheckHistoryFile(const FoundFile& found, const CheckedSlot& slot, bool folderIsMended) {
    Examination examination(found);
    if (CheckLength(examination, found, olderDrawFileRecords)) {
        HistoryCheck(examination, slot, folderIsMended).Run();
    }
    return std::move(examination).Result();
}

}  // namespace ballhaven::data
