#include "plays/WinnerHiLites.h"

#include "state/AppState.h"
#include "state/BoardGeometry.h"

#include <algorithm>

namespace ballhaven {

namespace {

constexpr int firstExemptCell = 99;
constexpr int lastExemptCell = 107;

/// QUIRK WINNER-ROW-1: the cells 99 to 107 turn red in no game with a code above 0, in a card game neither, where they
/// are bonus cards (2 to 10 of diamonds). Files and habits rest on it.
bool IsExempt(int gameType, int cell) {
    const BoardGeometry board = BoardOf(gameType);
    const bool isBesideTheWord = board.firstWordRowCell <= cell && cell < board.firstBonusCell && HasBonus(gameType);
    return isBesideTheWord || (gameType >= 1 && firstExemptCell <= cell && cell <= lastExemptCell);
}

/// The columns of a draw's row from `first` to `last`, as far as it has them.
std::span<const std::int16_t> ColumnsOf(std::span<const std::int16_t> draw, int first, int last) {
    const auto begin = std::min(static_cast<std::size_t>(first), draw.size());
    const auto end = std::clamp(static_cast<std::size_t>(std::max(first, last + 1)), begin, draw.size());
    return draw.subspan(begin, end - begin);
}

}  // namespace

bool IsWinner(const GameRules& rules, std::span<const std::int16_t> draw, int cell, int slot, int value) {
    if (IsExempt(rules.gameType, cell)) {
        return false;
    }
    const bool isBonus = cell >= BoardOf(rules.gameType).firstBonusCell;
    if (isBonus && !HasBonus(rules.gameType)) {
        return false;
    }
    const int columnsBefore = isBonus ? rules.mainPickCount : 0;
    int first = columnsBefore + slot;
    int last = first;
    if (!rules.orderMatters) {
        // QUIRK WINNER-DATE-1: the search of the main picks begins at the date, so a draw of one of the first days of
        // 1984 holds the number of its day as well. Files and habits rest on it.
        first = isBonus ? columnsBefore + 1 : 0;
        last = columnsBefore + (isBonus ? rules.bonusPickCount : rules.mainPickCount);
    }
    const auto columns = ColumnsOf(draw, first, last);
    return std::ranges::find(columns, value) != columns.end();
}

}  // namespace ballhaven
