#include "screen/LogCells.h"

#include "forms/MainForm.h"
#include "screen/HiLite.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

#include <cstdint>

namespace ballhaven {

namespace {

constexpr int dateColumn = 0;
constexpr std::int16_t blankPick = -1;

/// The cell of the view that a cell of the log shows; none outside the log.
std::optional<std::int16_t> DrawCell(int row, int column) {
    if (row >= frmMainForm.logRowCount || column > frmMainForm.logLastColumn ||
        !appState.historyView.Has(column, row)) {
        return std::nullopt;
    }
    return appState.historyView(column, row);
}

bool IsRedCard(const std::string& card) {
    return card.ends_with('h') || card.ends_with('d');
}

/// The boxes whose picks a column of the log can hold.
BoxRange BoxesOfColumn(int column) {
    if (appState.gameType == 1 || appState.gameType == 4) {
        return AllBoxes();
    }
    return column <= appState.mainPickCount ? MainBoxes() : BonusBoxes();
}

/// The box whose colour a pick takes; none when it is not hi-lited.
std::optional<int> BoxOfPick(const std::string& pick, int column) {
    const auto holdsPick = [&pick](const std::string& box) { return modUTILS::Trimmed(box) == pick; };
    if (!appState.orderMatters) {
        return FindBox(BoxesOfColumn(column), holdsPick);
    }
    // QUIRK ORDER-HILITE-1: where the order of drawing matters, only the first box is compared, and the colour tells at
    // which place its pick was drawn. It is meant: looking through all boxes would give a pick one colour everywhere.
    return FindBox({0, 0}, holdsPick) ? std::optional(column - 1) : std::nullopt;
}

}  // namespace

std::optional<std::string> LogCellValue(int row, int column) {
    const std::optional<std::int16_t> cell = DrawCell(row, column);
    if (!cell) {
        return std::nullopt;
    }
    if (*cell == blankPick) {
        return std::string();
    }
    return column == dateColumn ? SerialToDate(*cell) : PickToText(*cell);
}

void LogCellStyle(int row, int column, platform::CellStyle& style) {
    const std::optional<std::int16_t> cell = DrawCell(row, column);
    if (!cell || column == dateColumn || column > logPickColumns) {
        return;
    }
    style = {platform::black, platform::white};
    if (*cell == blankPick) {
        return;
    }
    const std::string pick = PickToText(*cell);
    if (IsCardGame(appState.gameType) && IsRedCard(pick)) {
        style.foreground = platform::red;
    }
    if (const std::optional<int> box = BoxOfPick(pick, column)) {
        style.background = HiLiteBackground(*box);
    }
    LogContrastRule(style);
}

}  // namespace ballhaven
