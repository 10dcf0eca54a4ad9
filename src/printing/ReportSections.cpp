#include "printing/ReportSections.h"

#include "printing/PickLabel.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotFigures.h"
#include "statistics/HotTables.h"

#include <array>
#include <cstddef>
#include <span>

namespace ballhaven {

namespace {

/// The words of a section's head, and the columns of its heads and of its rows.
struct SectionWords {
    const char* title;
    const char* pickHead;
    std::array<int, 4> headColumns;  ///< of the pick, the hits, the percentage and the interval; 0 for none
    std::array<int, 4> rowColumns;
};

// QUIRK REPORT-WORDS-1: a number game and a card game have the same words, but for Hot Numbers; all titles but that of
// the log end in a blank, which stands beside the one before the number of games; and one of them lacks "in Last".
// QUIRK REPORT-COLUMNS-1: the figures do not stand under the first letters of their heads, and not in the same way in
// Hot Pairs as in the others. Readers of these pages know them so.
constexpr std::array<SectionWords, 6> sectionWords{{
    // clang-format off
    {"Historical Log of Last", "Date",    {5,  0,  0,  0}, {}},
    {"Hot Numbers in Last ",   "Number",  {5, 13, 21, 26}, {6, 14, 20, 30}},
    {"Hot Pairs in Last ",     "Numbers", {5, 14, 22, 27}, {5, 15, 21, 32}},
    {"Paired once ",           "Numbers", {5,  0,  0,  0}, {}},
    {"Repeaters in Last ",     "Number",  {5, 13, 21, 26}, {6, 14, 20, 30}},
    {"No Hitters in Last ",    "Number",  {5,  0,  0,  0}, {}},
    // clang-format on
}};
constexpr SectionWords hotCards = {"Hot Cards in Last ", "Card", {5, 13, 21, 26}, {}};

constexpr std::array<const char*, 4> figureHeads = {"", "Hits", "%", "Game Interval"};

constexpr int dateColumn = 5;
constexpr std::array<int, 10> pickColumns = {20, 25, 30, 35, 40, 45, 50, 55, 60, 65};

const SectionWords& WordsOf(ReportSection section, int gameType) {
    if (section == ReportSection::HotNumbers && IsCardGame(gameType)) {
        return hotCards;
    }
    return sectionWords.at(static_cast<std::size_t>(section));
}

/// The cells of a row of a section's hot table, of which there must be so many.
std::span<const std::int32_t> CellsOf(ReportSection section, int row, std::size_t count) {
    const std::span<const std::int32_t> cells = CellsOfRow(TableOfSection(section), row);
    if (cells.size() < count) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    return cells;
}

std::optional<ReportLine> LogRow(const Table& view, int row, int picks) {
    const std::int16_t date = view.PickAt(0, row);
    if (date <= 0) {
        return std::nullopt;
    }
    ReportLine line = {{dateColumn, SerialToDate(date)}};
    // QUIRK REPORT-TEN-PICKS-1: there are columns for ten picks. Of a draw with more, bonus picks mostly, the others
    // are not printed.
    for (int pick = 1; const int column : pickColumns) {
        const std::int16_t drawn = pick <= picks ? view.PickAt(pick, row) : std::int16_t{-1};
        line.push_back({column, drawn > -1 ? pickLabel(drawn) : std::string()});
        ++pick;
    }
    return line;
}

ReportLine FiguresRow(ReportSection section, const std::string& picks, int games, int hits) {
    const auto& columns = sectionWords.at(static_cast<std::size_t>(section)).rowColumns;
    const FigureRange figures = FiguresOfFolder();
    return {{columns[0], picks},
            {columns[1], std::to_string(hits)},
            {columns[2], std::to_string(HotPercentage(games, hits, figures)) + "%"},
            {columns[3], IntervalText(games, hits, figures)}};
}

}  // namespace

HotTable TableOfSection(ReportSection section) {
    return HotTable{static_cast<std::int16_t>(section)};
}

SectionHead HeadOfSection(ReportSection section) {
    const SectionWords& words = WordsOf(section, appState.gameType);
    const std::string games = std::to_string(appState.historyViewLast + 1);
    SectionHead head{'=', std::string(words.title) + " " + games + " Games:", {}};
    head.columns.push_back({words.headColumns[0], words.pickHead});
    if (section == ReportSection::Log) {
        head.columns.push_back({pickColumns[0], "Picks"});
    }
    for (std::size_t figure = 1; figure < figureHeads.size(); ++figure) {
        if (words.headColumns[figure] > 0) {
            head.columns.push_back({words.headColumns[figure], figureHeads[figure]});
        }
    }
    return head;
}

// QUIRK REPORT-EMPTY-1: without draws no section has rows, not even No Hitters, whose table then lists every number.
std::int16_t LastRowOfSection(ReportSection section) {
    if (section == ReportSection::Log || appState.historyViewLast < 0) {
        return appState.historyViewLast;
    }
    return LastRowOf(TableOfSection(section));
}

std::string RemarkOfSection(ReportSection section) {
    return section == ReportSection::Log ? "No Data" : "None Found";
}

std::optional<Packing> PackingOfSection(ReportSection section) {
    if (section == ReportSection::PairedOnce) {
        return Packing{.entryWidth = 10, .lineLength = 60, .column = 5};
    }
    if (section == ReportSection::NoHitters) {
        return Packing{.entryWidth = 5, .lineLength = 50, .column = 6};
    }
    return std::nullopt;
}

std::optional<ReportLine> RowOfSection(ReportSection section, int row) {
    if (section == ReportSection::Log) {
        return LogRow(appState.historyView, row, appState.totalPicks);
    }
    const int games = appState.historyViewLast + 1;
    if (section == ReportSection::HotPairs) {
        const auto cells = CellsOf(section, row, 3);
        return FiguresRow(section, pickLabel(cells[0]) + ", " + pickLabel(cells[1]), games, cells[2]);
    }
    const auto cells = CellsOf(section, row, 2);
    return FiguresRow(section, pickLabel(cells[0]), games, cells[1]);
}

std::string EntryOfSection(ReportSection section, int row) {
    if (section == ReportSection::PairedOnce) {
        const auto cells = CellsOf(section, row, 2);
        return pickLabel(cells[0]) + "," + pickLabel(cells[1]);
    }
    return pickLabel(CellsOf(section, row, 1)[0]);
}

}  // namespace ballhaven
