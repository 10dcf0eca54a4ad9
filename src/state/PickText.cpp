#include "state/PickText.h"

#include <array>
#include <string_view>

#include "state/AppState.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

constexpr int ranks = 13;
constexpr int deckSize = 52;

constexpr std::array<std::string_view, ranks> rankTexts = {"A", "2", "3",  "4", "5", "6", "7",
                                                           "8", "9", "10", "J", "Q", "K"};
constexpr std::string_view suitLetters = "hcds";
constexpr std::string_view bonusWord = "BONUS";

// Cells of the boards, numbered along the rows. The board of a number game has 9 columns and 12 rows a block, that of a
// card game 6 columns; the word BONUS stands in the row before the bonus block.
constexpr int lastMainNumberCell = 100;
constexpr int firstNumberWordCell = 101;
constexpr int firstBonusNumberCell = 108;
constexpr int firstCardWordCell = 66;
constexpr int firstBonusCardCell = 72;

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

/// The letter of BONUS in a cell, the word beginning in `firstCell`; empty beside the word.
std::string WordLetter(int cell, int firstCell) {
    const int letter = cell - firstCell;
    if (letter < 0 || letter >= static_cast<int>(bonusWord.size())) {
        return {};
    }
    return std::string(bonusWord.substr(static_cast<std::size_t>(letter), 1));
}

/// Cells of the main or of the bonus numbers on the board of a number game.
struct NumberBlock {
    int base;   ///< its first cell
    int count;  ///< picks of a draw
    int low;
    int high;
};

/// The number in a cell of a block: the whole range once, or, where numbers can repeat, once for each pick of a draw.
std::string NumberText(const NumberBlock& block, int cell) {
    const int place = cell - block.base;
    if (place + block.low <= block.high) {
        return std::to_string(place + block.low);
    }
    if (!appState.duplicatesAllowed) {
        return {};
    }
    const int lowest = block.low < 1 ? 0 : 1;
    const int runLength = block.high - lowest + 1;
    return place < runLength * block.count ? std::to_string(place % runLength + lowest) : std::string();
}

std::string NumberCellText(int cell) {
    if (0 <= cell && cell <= lastMainNumberCell) {
        return NumberText({0, appState.mainPickCount, appState.mainLow, appState.mainHigh}, cell);
    }
    if (cell >= firstBonusNumberCell) {
        return NumberText({firstBonusNumberCell, appState.bonusPickCount, appState.bonusLow, appState.bonusHigh}, cell);
    }
    return appState.gameType > 0 ? WordLetter(cell, firstNumberWordCell) : std::string();
}

std::string CardCellText(int cell) {
    if (0 <= cell && cell < deckSize) {
        return std::to_string(cell + 1);
    }
    if (firstBonusCardCell <= cell && cell < firstBonusCardCell + deckSize) {
        return std::to_string(cell - firstBonusCardCell + 1);
    }
    return appState.gameType > 3 ? WordLetter(cell, firstCardWordCell) : std::string();
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

std::string PickToText(int pick) {
    return IsCardGame(appState.gameType) ? CardToText(pick) : std::to_string(pick);
}

std::string PickCellText(int cell) {
    return IsCardGame(appState.gameType) ? CardCellText(cell) : NumberCellText(cell);
}

}  // namespace ballhaven
