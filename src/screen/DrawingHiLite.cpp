#include "screen/DrawingHiLite.h"

#include "state/DrawCells.h"
#include "state/PickText.h"

#include <algorithm>
#include <string>

namespace ballhaven {

std::vector<std::int16_t> PicksOfBoxes(std::span<const std::int16_t> draw, int totalPicks) {
    std::vector<std::int16_t> picks(draw.begin(), draw.end());
    picks.resize(static_cast<std::size_t>(std::min(totalPicks, hiLiteBoxes)), blankPick);
    return picks;
}

// QUIRK HILITE-BLANK-1: a blank pick counts as -1, which no box ever holds, so a draw with a blank pick never counts as
// hi-lited: each click fills the boxes again. Were a blank equal to an empty box, the first click on a draw without any
// picks would switch off colours that stand for another draw.
bool HoldCodesOf(std::span<const std::int16_t> picks, const BoxTexts& codes) {
    for (std::size_t box = 0; box < picks.size(); ++box) {
        if (codes[box] != std::to_string(picks[box])) {
            return false;
        }
    }
    return true;
}

BoxContents BoxesWith(std::span<const std::int16_t> picks, int gameType) {
    BoxContents boxes;
    for (std::size_t box = 0; box < picks.size(); ++box) {
        if (picks[box] != blankPick) {
            boxes.texts[box] = PickToText(picks[box], gameType);
            boxes.codes[box] = std::to_string(picks[box]);
        }
    }
    return boxes;
}

}  // namespace ballhaven
