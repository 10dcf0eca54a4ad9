#include "state/PickText.h"

#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "state/modUTILS.h"

#include <array>
#include <string_view>

namespace ballhaven {

namespace {

constexpr int ranks = 13;
constexpr int deckSize = 52;

constexpr std::array<std::string_view, ranks> rankTexts = {"A", "2", "3",  "4", "5", "6", "7",
                                                           "8", "9", "10", "J", "Q", "K"};
constexpr std::string_view suitLetters = "hcds";

/// Rank of a letter of A, J, Q and K in either case; 0 for any other character.
int RankOfLetter(char letter) {
    switch (modUTILS::UpperCase(letter)) {
        case 'A':
            return 1;
        case 'J':
            return 11;
        case 'Q':
            return 12;
        case 'K':
            return 13;
        default:
            return 0;
    }
}

/// The letter of BONUS in a cell; empty beside the word.
std::string BonusLetter(int gameType, int cell) {
    const std::optional<int> letter = BonusLetterAt(gameType, cell);
    return letter ? std::string(1, bonusWord[static_cast<std::size_t>(*letter)]) : std::string();
}

/// Cells of the main or of the bonus numbers on the board of a number game.
struct NumberBlock {
    int base;   ///< its first cell
    int count;  ///< picks of a draw
    int low;
    int high;
};

/// The number in a cell of a block: the whole range once, or, where numbers can repeat, once for each pick of a draw.
std::string NumberText(const NumberBlock& block, bool canRepeat, int cell) {
    const int place = cell - block.base;
    if (place + block.low <= block.high) {
        return std::to_string(place + block.low);
    }
    if (!canRepeat) {
        return {};
    }
    const int lowest = block.low < 1 ? 0 : 1;
    const int runLength = block.high - lowest + 1;
    return place < runLength * block.count ? std::to_string(place % runLength + lowest) : std::string();
}

std::string NumberCellText(const GameRules& rules, int cell) {
    const BoardGeometry board = BoardOf(rules.gameType);
    if (0 <= cell && cell < board.mainCells) {
        const NumberBlock block{0, rules.mainPickCount, rules.mainLow, rules.mainHigh};
        return NumberText(block, rules.duplicatesAllowed, cell);
    }
    if (cell >= board.firstBonusCell) {
        const NumberBlock block{board.firstBonusCell, rules.bonusPickCount, rules.bonusLow, rules.bonusHigh};
        return NumberText(block, rules.duplicatesAllowed, cell);
    }
    return BonusLetter(rules.gameType, cell);
}

std::string CardCellText(int gameType, int cell) {
    const BoardGeometry board = BoardOf(gameType);
    if (0 <= cell && cell < board.mainCells) {
        return std::to_string(cell + 1);
    }
    if (board.firstBonusCell <= cell && cell < board.firstBonusCell + deckSize) {
        return std::to_string(cell - board.firstBonusCell + 1);
    }
    return BonusLetter(gameType, cell);
}

}  // namespace

std::string CardToText(int value) {
    if (value < 1 || value > deckSize) {
        return {};
    }
    const auto suit = static_cast<std::size_t>((value - 1) / ranks);
    const auto rank = static_cast<std::size_t>((value - 1) % ranks);
    return std::string(rankTexts[rank]) + suitLetters[suit];
}

std::int16_t TextToCard(std::string& text) {
    int rank = modUTILS::ValueOf16(text);
    if (text.empty()) {
        return static_cast<std::int16_t>(-ranks);
    }
    if (rank == 0) {
        rank = RankOfLetter(text.front());
        if (rank != 0) {
            text.front() = modUTILS::UpperCase(text.front());
        }
    }
    const std::size_t suit = suitLetters.find(modUTILS::LowerCase(text.back()));
    if (suit != std::string_view::npos) {
        text.back() = suitLetters[suit];
    }
    const int suitNumber = suit == std::string_view::npos ? 0 : static_cast<int>(suit) + 1;
    return modUTILS::ToInt16(suitNumber * ranks - ranks + rank);
}

std::string PickToText(int pick, int gameType) {
    return IsCardGame(gameType) ? CardToText(pick) : std::to_string(pick);
}

std::string PickToText(int pick) {
    return PickToText(pick, appState.gameType);
}

std::string TextOfPickCell(const GameRules& rules, int cell) {
    return IsCardGame(rules.gameType) ? CardCellText(rules.gameType, cell) : NumberCellText(rules, cell);
}

std::string PickCellText(int cell) {
    return TextOfPickCell(CurrentRules(), cell);
}

}  // namespace ballhaven
