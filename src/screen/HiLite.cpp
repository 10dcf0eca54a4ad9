#include "screen/HiLite.h"

#include <algorithm>

namespace ballhaven {

platform::Color HiLiteBackground(int box) {
    return hiLiteColors.at(static_cast<std::size_t>(box)).background;
}

void ContrastRule(platform::CellStyle& style) {
    const auto found = std::ranges::find(hiLiteColors, style.background, &HiLiteColor::background);
    if (found != hiLiteColors.end()) {
        style.foreground = found->foreground;
    }
}

void LogContrastRule(platform::CellStyle& style) {
    ContrastRule(style);
    if (style.background == platform::windowColor) {
        style.foreground = platform::red;
    }
}

BoxRange MainBoxes(int mainPicks) {
    return {0, mainPicks - 1};
}

BoxRange BonusBoxes(int mainPicks, int bonusPicks) {
    return {mainPicks, mainPicks + bonusPicks - 1};
}

BoxRange AllBoxes(int mainPicks, int bonusPicks) {
    return {0, mainPicks + bonusPicks - 1};
}

}  // namespace ballhaven
