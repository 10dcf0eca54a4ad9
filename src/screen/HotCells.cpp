#include "screen/HotCells.h"

#include "forms/GamePresentation.h"
#include "screen/HiLite.h"
#include "state/AppState.h"
#include "state/GameRules.h"
#include "state/PickText.h"
#include "state/modUTILS.h"
#include "statistics/HotTables.h"

#include <array>
#include <cstddef>

namespace ballhaven {

namespace {

/// What the cells of a table's row are.
struct RowLayout {
    bool isPair;
    bool isCounted;  ///< a count stands behind the picks
};

/// By `hotTableChoice` - 1.
constexpr std::array<RowLayout, 5> rowLayouts{{
    // clang-format off
    {false, true},   // Hot Numbers
    {true,  true},   // Hot Pairs
    {true,  false},  // Paired Once
    {false, true},   // Repeaters
    {false, false},  // No-Hitters
    // clang-format on
}};

/// The boxes whose picks count in the statistics.
BoxRange CountedBoxes(CountedPicks counted, const GameRules& rules) {
    switch (counted) {
        case CountedPicks::Main:
            return MainBoxes(rules.mainPickCount);
        case CountedPicks::Bonus:
            return BonusBoxes(rules.mainPickCount, rules.bonusPickCount);
        case CountedPicks::All:
            break;
    }
    return AllBoxes(rules.mainPickCount, rules.bonusPickCount);
}

}  // namespace

std::optional<std::string> HotCellText(HotTable table, std::span<const std::int32_t> cells, int column, int games,
                                       int gameType, FigureRange figures) {
    const auto [isPair, isCounted] = rowLayouts.at(static_cast<std::size_t>(table) - 1);
    const std::size_t picks = isPair ? 2 : 1;
    if (cells.size() < picks + (isCounted ? 1 : 0)) {
        return std::nullopt;
    }
    if (column == 0) {
        const std::string first = PickToText(cells[0], gameType);
        return isPair ? first + ", " + PickToText(cells[1], gameType) : first;
    }
    if (!isCounted) {
        return std::string();
    }
    const std::int32_t hits = cells[picks];
    if (column == 1) {
        return std::to_string(hits);
    }
    if (column == 2) {
        return std::to_string(HotPercentage(games, hits, figures));
    }
    // A pair whose lower pick lies below the main picks leaves a row of zeros, which has no interval to tell.
    return table == HotTable::HotPairs && hits == 0 ? std::string() : IntervalText(games, hits, figures);
}

platform::Color SuitColor(std::string_view cards) {
    const auto has = [cards](char suit) { return cards.find(suit) != std::string_view::npos; };
    const bool isPair = has(',');
    if (isPair && has('c') != has('s')) {
        return platform::blue;
    }
    return has('h') || has('d') ? platform::red : platform::black;
}

bool IsHiLitedBy(std::string_view box, std::string_view picks) {
    const std::size_t comma = picks.find(',');
    const std::string_view left = picks.substr(0, comma);
    // QUIRK PAIR-HILITE-1: the right part begins with the blank behind the comma, so it equals no box, and only the
    // left pick of a pair is hi-lited. Trimming the part would colour far more pairs.
    const std::string_view right = comma == std::string_view::npos ? std::string_view() : picks.substr(comma + 1);
    return !box.empty() && (box == left || box == right);
}

std::optional<std::string> HotCellValue(int row, int column) {
    if (appState.hotTableChoice < 1 || !ShownHotCells().Has(row, column) || row > LastRowOf(ShownHotTable())) {
        return std::nullopt;
    }
    return HotCellText(ShownHotTable(), CellsOfRow(ShownHotTable(), row), column, appState.historyViewLast + 1,
                       appState.gameType, FiguresOfFolder());
}

void HotCellStyle(int row, int column, platform::CellStyle& style) {
    style = {platform::black, platform::white};
    const std::optional<std::string> cell = column == 0 ? HotCellValue(row, column) : std::nullopt;
    if (!cell) {
        return;
    }
    const std::string picks = modUTILS::Trimmed(*cell);
    if (IsCardGame(appState.gameType)) {
        style.foreground = SuitColor(picks);
    }
    const std::optional<int> box =
        FindBox(ShownHiLites(), CountedBoxes(CountedPicks{appState.hotSortChoice}, CurrentRules()),
                [&picks](std::string_view boxText) { return IsHiLitedBy(boxText, picks); });
    if (box) {
        style.background = HiLiteBackground(*box);
    }
    ContrastRule(style);
}

}  // namespace ballhaven
