#include "plays/BoardColours.h"

#include "plays/PickSlots.h"
#include "plays/PickToggling.h"
#include "state/BoardGeometry.h"

#include <algorithm>
#include <array>

namespace ballhaven {

namespace {

using platform::black;
using platform::CellStyle;
using platform::Color;
using platform::red;
using platform::white;

constexpr Color paleBlue{0xC0, 0xC0, 0xFF};
constexpr Color lightGrey{0xC0, 0xC0, 0xC0};

constexpr CellStyle plain{black, white};
constexpr CellStyle redOnWhite{red, white};
constexpr CellStyle besideTheWord{black, paleBlue};
constexpr CellStyle takenByOther{lightGrey, white};
constexpr CellStyle picked{white, black};

/// The colours of a pick by its slot, from 1, where the order of the drawing matters.
constexpr std::array<CellStyle, 10> orderColours = {{
    // clang-format off
    {white, {0x00, 0x00, 0x00}},
    {white, {0x00, 0x80, 0x00}},
    {white, {0x80, 0x80, 0x80}},
    {white, {0x80, 0x80, 0x00}},
    {white, {0x80, 0x00, 0x00}},
    {white, {0x00, 0x80, 0x80}},
    {white, {0x00, 0x00, 0xFF}},
    {white, {0x80, 0x00, 0x80}},
    {white, {0x00, 0x00, 0x80}},
    {black, {0xFF, 0x00, 0xFF}},
    // clang-format on
}};

/// Hearts are the cards 1 to 13, diamonds 27 to 39.
bool IsRedCard(int card) {
    return card < 14 || (27 <= card && card <= 39);
}

CellStyle CardGround(int cell, int firstBonusCell) {
    const int card = cell < firstBonusCell ? cell + 1 : cell - firstBonusCell + 1;
    return IsRedCard(card) ? redOnWhite : plain;
}

/// Where numbers can repeat, each pick position has a run of all numbers, and the runs alternate in red and black.
CellStyle RunGround(const GameRules& rules, int cell, const BoardGeometry& board) {
    const bool isBonus = cell >= board.firstBonusCell;
    const int low = isBonus ? rules.bonusLow : rules.mainLow;
    const int high = isBonus ? rules.bonusHigh : rules.mainHigh;
    // QUIRK BONUS-RUNS-1: where the lowest number is 1 the runs of the bonus picks are counted from the first cell of
    // the board, not from their own, so they need not begin in red, and can change colour within a run. Files and
    // habits rest on it.
    const int place = low < 1 && isBonus ? cell - board.firstBonusCell : cell;
    const int runLength = low < 1 ? high + 1 : high;
    return runLength > 0 && place / runLength % 2 == 0 ? redOnWhite : plain;
}

/// The colours of a cell that is no pick.
CellStyle Ground(const GameRules& rules, int cell) {
    const BoardGeometry board = BoardOf(rules.gameType);
    const bool isBesideTheWord = board.firstWordRowCell <= cell && cell < board.firstBonusCell;
    if (isBesideTheWord && HasBonus(rules.gameType)) {
        return besideTheWord;
    }
    if (IsCardGame(rules.gameType)) {
        return CardGround(cell, board.firstBonusCell);
    }
    const bool isNumber = cell < board.mainCells || cell >= board.firstBonusCell;
    return rules.duplicatesAllowed && isNumber ? RunGround(rules, cell, board) : plain;
}

}  // namespace

std::optional<int> SlotOfCell(const GameRules& rules, const BoardPicks& picks, int cell) {
    const BoardPick pick = PickOfCell(rules.gameType, cell);
    const auto& list = pick.list == bonusPicks ? picks.bonus : picks.main;
    const auto found = std::ranges::find(list, pick.value);
    return found == list.end() ? std::nullopt : std::optional(static_cast<int>(found - list.begin()) + 1);
}

CellStyle BoardCellStyle(const GameRules& rules, const BoardPicks& picks, int cell) {
    if (const std::optional<int> slot = SlotOfCell(rules, picks, cell)) {
        const auto place = static_cast<std::size_t>(*slot - 1);
        return rules.orderMatters && place < orderColours.size() ? orderColours[place] : picked;
    }
    const BoardPick pick = PickOfCell(rules.gameType, cell);
    const auto& otherList = pick.list == bonusPicks ? picks.main : picks.bonus;
    return KeepsListsApart(rules.gameType) && Holds(otherList, pick.value) ? takenByOther : Ground(rules, cell);
}

}  // namespace ballhaven
