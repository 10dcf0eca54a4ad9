#include "screen/LogCells.h"

#include "screen/HiLite.h"
#include "state/AppState.h"
#include "state/DateSerial.h"
#include "state/DrawCells.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

#include <string_view>

namespace ballhaven {

namespace {

bool IsRedCard(std::string_view card) {
    return card.ends_with('h') || card.ends_with('d');
}

/// The boxes whose picks a column of the log can hold.
BoxRange BoxesOfColumn(int column, const GameRules& rules) {
    if (BonusComesFromMainPool(rules.gameType)) {
        return AllBoxes(rules.mainPickCount, rules.bonusPickCount);
    }
    return column <= rules.mainPickCount ? MainBoxes(rules.mainPickCount)
                                         : BonusBoxes(rules.mainPickCount, rules.bonusPickCount);
}

/// The box whose colour a pick takes; none when it is not hi-lited.
std::optional<int> BoxOfPick(const std::string& pick, int column, const GameRules& rules, const HiLites& hiLites) {
    const auto holdsPick = [&pick](std::string_view box) { return modUTILS::Trimmed(box) == pick; };
    if (!rules.orderMatters) {
        return FindBox(hiLites, BoxesOfColumn(column, rules), holdsPick);
    }
    // QUIRK ORDER-HILITE-1: where the order of drawing matters, only the first box is compared, and the colour tells at
    // which place its pick was drawn. Looking through all boxes would give a pick one colour everywhere.
    return FindBox(hiLites, {0, 0}, holdsPick) ? std::optional(column - 1) : std::nullopt;
}

}  // namespace

std::optional<std::int16_t> DrawCell(const Table& view, const GridExtent& log, int row, int column) {
    if (!log.Has(row, column) || !view.Has(column, row)) {
        return std::nullopt;
    }
    return view(column, row);
}

platform::CellStyle StyleOfPick(int pick, int column, const GameRules& rules, const HiLites& hiLites) {
    platform::CellStyle style{platform::black, platform::white};
    if (pick == blankPick) {
        return style;
    }
    const std::string text = PickToText(pick, rules.gameType);
    if (IsCardGame(rules.gameType) && IsRedCard(text)) {
        style.foreground = platform::red;
    }
    if (const std::optional<int> box = BoxOfPick(text, column, rules, hiLites)) {
        style.background = HiLiteBackground(*box);
    }
    LogContrastRule(style);
    return style;
}

std::optional<std::string> LogCellValue(int row, int column) {
    const std::optional<std::int16_t> cell = DrawCell(appState.historyView, ShownLog(), row, column);
    if (!cell) {
        return std::nullopt;
    }
    if (*cell == blankPick) {
        return std::string();
    }
    return column == dateColumn ? TextOfSerial(*cell, appState.shortDateFormat) : PickToText(*cell, appState.gameType);
}

void LogCellStyle(int row, int column, platform::CellStyle& style) {
    const std::optional<std::int16_t> cell = DrawCell(appState.historyView, ShownLog(), row, column);
    if (!cell || column == dateColumn) {
        return;
    }
    style = StyleOfPick(*cell, column, CurrentRules(), ShownHiLites());
}

}  // namespace ballhaven
