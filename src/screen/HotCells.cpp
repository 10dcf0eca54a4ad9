#include "screen/HotCells.h"

#include "forms/MainForm.h"
#include "screen/HiLite.h"
#include "state/AppState.h"
#include "state/PickText.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"
#include "statistics/HotTableKinds.h"

#include <cmath>
#include <cstdint>
#include <string_view>

namespace ballhaven {

namespace {

/// What a row of the shown table says: the text of its first column, and its hits where the table counts.
struct HotRow {
    std::string picks;
    std::optional<int> hits;
};

std::string PairText(const Table& pairs, int row) {
    return PickToText(pairs(1, row)) + ", " + PickToText(pairs(2, row));
}

/// A row of the shown table; none where the table has no such row.
std::optional<HotRow> ShownRow(int row) {
    const auto has = [row](const Table& table) { return table.Has(0, row); };
    switch (ShownHotTable()) {
        case HotTable::HotNumbers:
            if (const Table& table = appState.hotNumberTable; has(table)) {
                return HotRow{PickToText(table(1, row)), table(2, row)};
            }
            break;
        case HotTable::HotPairs:
            if (const Table& table = appState.hotPairTable; has(table)) {
                return HotRow{PairText(table, row), table(3, row)};
            }
            break;
        case HotTable::PairedOnce:
            if (const Table& table = appState.pairedOnceTable; has(table)) {
                return HotRow{PairText(table, row), std::nullopt};
            }
            break;
        case HotTable::Repeaters:
            if (const Table& table = appState.repeaterTable; has(table)) {
                return HotRow{PickToText(table(1, row)), table(2, row)};
            }
            break;
        case HotTable::NoHitters:
            if (row < std::ssize(appState.noHitterTable)) {
                return HotRow{PickToText(appState.noHitterTable[static_cast<std::size_t>(row)]), std::nullopt};
            }
            break;
    }
    return std::nullopt;
}

// QUIRK HOT-PERCENT-1: a pick that stands twice in one draw counts twice, so the percentage can pass 100. It is meant:
// it is the share of the hits column beside it, and a limit at 100 would let the two disagree.
std::string PercentText(int games, int hits) {
    return std::to_string(modUTILS::Divide(modUTILS::ToInt16(hits * 100), games));
}

/// The colour of a card, or of a pair of cards, in a card game.
platform::Color SuitColor(std::string_view cards) {
    const auto has = [cards](char suit) { return cards.find(suit) != std::string_view::npos; };
    const bool isPair = has(',');
    if (isPair && has('c') != has('s')) {
        return platform::blue;
    }
    return has('h') || has('d') ? platform::red : platform::black;
}

/// The boxes whose picks count in the statistics.
BoxRange CountedBoxes() {
    switch (CountedPicks{appState.hotSortChoice}) {
        case CountedPicks::Main:
            return MainBoxes();
        case CountedPicks::Bonus:
            return BonusBoxes();
        case CountedPicks::All:
            break;
    }
    return AllBoxes();
}

/// The box that holds a pick of the row; none when the row is not hi-lited.
std::optional<int> BoxOfRow(std::string_view picks) {
    const std::size_t comma = picks.find(',');
    const std::string_view left = picks.substr(0, comma);
    // QUIRK PAIR-HILITE-1: the right part begins with the blank behind the comma, so it equals no box, and only the
    // left pick of a pair is hi-lited. It is meant: a pair has one colour, and it is the one of its lower pick.
    // Trimming the part would colour far more pairs.
    const std::string_view right = comma == std::string_view::npos ? std::string_view() : picks.substr(comma + 1);
    return FindBox(CountedBoxes(),
                   [left, right](const std::string& box) { return !box.empty() && (box == left || box == right); });
}

}  // namespace

std::optional<std::string> HotCellValue(int row, int column) {
    if (row < 0 || row >= frmMainForm.hotRowCount || column < 0 || column >= frmMainForm.hotColumnCount) {
        return std::nullopt;
    }
    const std::optional<HotRow> shown = ShownRow(row);
    if (!shown) {
        return std::nullopt;
    }
    if (column == 0) {
        return shown->picks;
    }
    if (!shown->hits) {
        return std::string();
    }
    const int games = appState.historyViewLast + 1;
    if (column == 1) {
        return std::to_string(*shown->hits);
    }
    if (column == 2) {
        return PercentText(games, *shown->hits);
    }
    // A pair whose lower pick lies below the main picks leaves a row of zeros, which has no interval to tell.
    const bool isZeroPair = ShownHotTable() == HotTable::HotPairs && *shown->hits == 0;
    return isZeroPair ? std::string() : IntervalText(games, *shown->hits);
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
    if (const std::optional<int> box = BoxOfRow(picks)) {
        style.background = HiLiteBackground(*box);
    }
    ContrastRule(style);
}

std::string IntervalText(int games, int hits) {
    if (hits == 0) {
        throw RuntimeFailure(RuntimeFailure::Kind::DivisionByZero);
    }
    // Ten times a single-precision number fits into double precision, so that it is the exact value that gets rounded.
    const auto interval = static_cast<float>(static_cast<double>(games) / hits);
    const auto tenths = static_cast<std::int64_t>(std::round(static_cast<double>(interval) * 10));
    const std::int64_t whole = tenths / 10;
    return (whole == 0 ? std::string() : std::to_string(whole)) + '.' + std::to_string(tenths % 10);
}

}  // namespace ballhaven
