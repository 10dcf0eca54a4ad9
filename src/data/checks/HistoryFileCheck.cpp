#include "data/checks/HistoryFileCheck.h"

#include "data/checks/HistoryRows.h"
#include "state/AppState.h"
#include "state/GameRules.h"

#include <algorithm>

namespace ballhaven::data {

namespace {

constexpr RecordField stampField{1, 10};
constexpr RecordField markField{64, 1};
constexpr std::string_view stamp = "10-26-2002";
constexpr int dateColumn = 1;
constexpr int fifthDigitColumn = 5;

constexpr RecordField PickField(int pick) {
    return {3 * pick + 3, 2};
}

RecordField DateField(DateDigits digits) {
    return {dateColumn, static_cast<int>(digits)};
}

std::vector<RecordField> RowFields() {
    std::vector<RecordField> fields{DateField(DateDigits::Five)};
    for (int pick = 1; pick <= mostPicksOfDraw; ++pick) {
        fields.push_back(PickField(pick));
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

bool HasKnownRules(const GameOnFile& game) {
    return game.defined && game.rules.gameType <= 5 && TotalPicksOf(game.rules) <= mostPicksOfDraw;
}

class HistoryCheck {
  public:
    HistoryCheck(Examination& fileExamination, const GameOnFile& ofGame, bool mended)
        : examination(fileExamination), game(ofGame), folderIsMended(mended) {}

    void Run() {
        examination.BeginRecord(headerRecord, "header");
        if (examination.IsText("Nothing but the mark of dates with five digits is read there.")) {
            CheckHeader();
        }
        digits = DateDigitsOf(examination.Record(headerRecord));
        std::vector<HistoryRow> rows;
        for (int record = firstDrawRecord; record <= drawFileRecords; ++record) {
            rows.push_back(CheckRow(record));
        }
        CheckRowOrder(examination, rows, digits);
        examination.EndRecords();
        RemarkDrawsWithoutGame(rows);
    }

  private:
    void CheckHeader() {
        if (examination.Text(headerRecord, stampField) != stamp) {
            examination.MendField({stampField, "stamp of the form"}, stamp, "Nothing reads it.");
        }
        const std::string mark = examination.Text(headerRecord, markField);
        if (mark != "M" && folderIsMended && HasFiveDigits()) {
            examination.MendField({markField, "mark of dates with five digits"}, "M",
                                  "Without it the fifth digit of the dates, which stands there, is not read.");
        } else if (mark != "M" && mark != " ") {
            examination.MendField({markField, "mark of dates with five digits"}, " ", "Dates have four digits here.");
        }
        examination.MendUnused(headerColumns, StrayDigits::Blank);
    }

    /// Whether some row has a date of five digits, whatever the header says.
    [[nodiscard]] bool HasFiveDigits() const {
        for (int record = firstDrawRecord; record <= drawFileRecords; ++record) {
            const std::optional<int> date = NumberIn(examination.Text(record, DateField(DateDigits::Five)));
            if (date && *date >= 10'000) {
                return true;
            }
        }
        return false;
    }

    HistoryRow CheckRow(int record) {
        const std::string found = examination.Record(record);
        if (IsBlank(found)) {
            return {record, 0, found};
        }
        std::int16_t cells[1] = {0};
        (void)DecodeDraw(found, digits, cells);
        const int date = cells[0];
        examination.BeginRecord(record, date > 0 ? DrawSubject(date) : "");
        if (examination.IsText("Ballhaven reads what numbers it finds there. Look at the draw, and at a copy.")) {
            CheckDate(found);
            CheckPicks(record);
            examination.MendUnused(rowColumns, StrayDigits::Leave);
        }
        return {record, date, examination.Record(record)};
    }

    void CheckDate(const std::string& row) {
        const NamedField field{DateField(digits), "date"};
        const std::optional<int> date = NumberIn(FieldText(row, field.columns));
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
        const RecordField fifth{fifthDigitColumn, 1};
        if (digits == DateDigits::Five || FieldText(row, fifth) == " ") {
            return;
        }
        if (NumberIn(FieldText(row, DateField(DateDigits::Five)))) {
            examination.LeaveField({DateField(DateDigits::Five), "date"}, "a digit longer than this file's dates",
                                   "Ballhaven reads the first four.");
        } else {
            examination.MendField({fifth, "blank behind the date"}, " ", "Nothing reads it.");
        }
    }

    void CheckPicks(int record) {
        const int picks = HasKnownRules(game) ? TotalPicksOf(game.rules) : 0;
        for (int pick = 1; pick <= mostPicksOfDraw; ++pick) {
            const NamedField field{PickField(pick), "pick " + std::to_string(pick)};
            const std::string text = examination.Text(record, field.columns);
            if (IsBlank(text)) {
                continue;
            }
            if (const std::optional<int> value = NumberIn(text); !value) {
                examination.LeaveField(field, "no number",
                                       "Ballhaven reads it as " + std::to_string(modUTILS::PickOfField(text)) + ".");
            } else if (pick <= picks) {
                CheckPick(field, *value, LimitsOf(game.rules, pick));
            }
        }
    }

    void CheckPick(const NamedField& field, int value, Limits limits) {
        if (value < limits.low || value > limits.high) {
            examination.LeaveField(
                field, "outside " + std::to_string(limits.low) + " to " + std::to_string(limits.high),
                "Type it again in Ballhaven, or choose other limits with \"Alter Game Configuration\".");
        }
    }

    void RemarkDrawsWithoutGame(const std::vector<HistoryRow>& rows) {
        const auto draws = std::ranges::count_if(rows, [](const HistoryRow& row) { return row.date > 0; });
        if (!game.defined && draws > 0) {
            examination.Remark("holds " + std::to_string(draws) + " draws, and no game has been set up in slot " +
                                   std::to_string(game.slot),
                               "They belong to the next game that is.");
        }
    }

    Examination& examination;
    const GameOnFile& game;
    bool folderIsMended;
    DateDigits digits = DateDigits::Four;
    const std::vector<bool> headerColumns = ColumnsOf({stampField, markField}, drawRecordLength);
    const std::vector<bool> rowColumns = ColumnsOf(RowFields(), drawRecordLength);
};

}  // namespace

CheckedFile CheckHistoryFile(const FoundFile& found, const GameOnFile& game, bool folderIsMended) {
    Examination examination(found);
    if (CheckLength(examination, found, olderDrawFileRecords)) {
        HistoryCheck(examination, game, folderIsMended).Run();
    }
    return std::move(examination).Result();
}

}  // namespace ballhaven::data
