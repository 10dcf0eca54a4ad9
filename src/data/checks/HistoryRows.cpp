#include "data/checks/HistoryRows.h"

#include "data/folder/IsoDate.h"

#include <algorithm>
#include <map>
#include <span>

namespace ballhaven::data {

namespace {

using Rows = std::vector<HistoryRow>;
using RowSpan = std::span<const HistoryRow>;

// Where a file keeps four digits of a date, what was 10000 to 32767 comes back as 1000 to 3276.
constexpr int lowestCutDate = 1000;
constexpr int highestCutDate = 3276;
constexpr int lastYearsOfFourDigits = 9000;  // from 2008-08-22 on
constexpr const char* whyDatesMayBeCut =
    "This file keeps no date after 2011-05-18: later ones lose their last digit. If they are draws of later years, "
    "delete them, mark the folder with \"ballhaven-data mend\", and import them again; else delete them and enter them "
    "with their right dates.";
constexpr const char* whyDatesMayHaveBeenCut =
    "A date after 2011-05-18 that was entered before the folder was mended has lost its last digit. If they are draws "
    "of "
    "later years, delete them, and import them again or enter them with their right dates; else they are put in order "
    "when you next add a draw.";

bool HoldsDraw(const HistoryRow& row) {
    return row.date > 0;
}

/// Keeps a finding for each run of rows without a draw between those with one. Returns whether there is any.
bool CheckHoles(Examination& examination, RowSpan rows, bool folderIsMended) {
    const auto last = std::ranges::find_if(rows.rbegin(), rows.rend(), HoldsDraw).base();
    bool found = false;
    for (auto row = rows.begin(); row < last;) {
        const auto hole = std::find_if_not(row, last, HoldsDraw);
        row = std::find_if(hole, last, HoldsDraw);
        if (hole != row) {
            found = true;
            examination.Mend("no draw stands in " + RecordsText(hole->record, (row - 1)->record) + ", before others",
                             folderIsMended
                                 ? "Ballhaven passes over such rows in a mended folder."
                                 : "As many of the newest draws are hidden, and the next ones take their places.");
        }
    }
    return found;
}

/// Whether a date can be what four digits have left of a later one. A file that keeps five now may have kept four when
/// the draw was entered.
bool CanBeCut(const HistoryRow& row) {
    return row.date >= lowestCutDate && row.date <= highestCutDate;
}

bool LooksCut(const HistoryRow& before, const HistoryRow& row) {
    return before.date >= lastYearsOfFourDigits && CanBeCut(row);
}

/// How many of the draws, from the first on, stand before the first one whose date may have lost its last digit.
std::size_t CountBeforeCutDates(RowSpan draws) {
    const auto cut = std::ranges::adjacent_find(draws, LooksCut);
    return cut == draws.end() ? draws.size() : static_cast<std::size_t>(cut + 1 - draws.begin());
}

/// Keeps a finding about the draws from the first one on whose date may have lost its last digit. Others among them
/// may be right.
void ReportCutDates(Examination& examination, RowSpan rest, DateDigits digits) {
    const auto count = std::ranges::count_if(rest, CanBeCut);
    const std::string first = RecordsText(rest.front().record, rest.front().record);
    const std::string date = IsoDate(rest.front().date);
    examination.Leave(count == 1 ? "the draw in " + first + " is dated " + date + ", behind newer ones"
                                 : std::to_string(count) + " draws, the first in " + first + ", are dated from " +
                                       date + " on, behind newer ones",
                      digits == DateDigits::Four ? whyDatesMayBeCut : whyDatesMayHaveBeenCut);
}

bool CheckAscending(Examination& examination, RowSpan draws) {
    bool ascending = true;
    for (std::size_t place = 1; place < draws.size(); ++place) {
        if (draws[place].date < draws[place - 1].date) {
            ascending = false;
            examination.BeginRecord(draws[place].record, DrawSubject(draws[place].date));
            examination.Mend("stands behind the draw of " + IsoDate(draws[place - 1].date),
                             "The last draws are counted by their rows, so that wrong ones may be.");
        }
    }
    return ascending;
}

void CheckDatedTwice(Examination& examination, RowSpan draws, DateDigits digits) {
    std::map<int, int> recordOfDate;
    for (const HistoryRow& draw : draws) {
        const auto [first, isNew] = recordOfDate.emplace(draw.date, draw.record);
        if (!isNew) {
            examination.BeginRecord(draw.record, DrawSubject(draw.date));
            examination.Leave("has the date of record " + std::to_string(first->second),
                              digits == DateDigits::Four && CanBeCut(draw)
                                  ? whyDatesMayBeCut
                                  : "Give one of them its right date in Ballhaven, or delete it.");
        }
    }
}

void PutRows(Examination& examination, const Rows& rows) {
    int record = firstDrawRecord;
    for (const HistoryRow& row : rows) {
        examination.PutRecord(record++, row.text);
    }
    for (; record <= drawFileRecords; ++record) {
        examination.PutRecord(record, "");
    }
}

}  // namespace

std::string DrawSubject(int date) {
    return "draw of " + IsoDate(date);
}

void CheckRowOrder(Examination& examination, const Rows& rows, DateDigits digits, bool folderIsMended) {
    examination.EndRecords();
    const bool holes = CheckHoles(examination, rows, folderIsMended);
    Rows closed = rows;
    const auto noDraws = std::stable_partition(closed.begin(), closed.end(), HoldsDraw);
    const RowSpan draws(closed.begin(), noDraws);
    const std::size_t dated = CountBeforeCutDates(draws);
    const bool ascending = CheckAscending(examination, draws.first(dated));
    CheckDatedTwice(examination, draws.first(dated), digits);
    examination.EndRecords();
    if (dated < draws.size()) {
        ReportCutDates(examination, draws.subspan(dated), digits);
    }
    if (holes || !ascending) {
        std::stable_sort(closed.begin(), closed.begin() + static_cast<std::ptrdiff_t>(dated),
                         [](const HistoryRow& a, const HistoryRow& b) { return a.date < b.date; });
        std::erase_if(closed, [](const HistoryRow& row) { return IsBlank(row.text); });
        PutRows(examination, closed);
    }
}

}  // namespace ballhaven::data
