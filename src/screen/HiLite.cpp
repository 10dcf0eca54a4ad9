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

BoxRange MainBoxes() {
    return {0, appState.mainPickCount - 1};
}

BoxRange BonusBoxes() {
    return {appState.mainPickCount, appState.mainPickCount + appState.bonusPickCount - 1};
}

BoxRange AllBoxes() {
    return {0, BonusBoxes().last};
}

}  // namespace ballhaven
