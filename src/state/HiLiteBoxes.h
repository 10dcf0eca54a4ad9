#pragma once

#include "platform/controls/Color.h"

#include <array>
#include <string>
#include <string_view>

namespace ballhaven {

inline constexpr int hiLiteBoxes = 10;

/// A colour of the Color by Number toolbar, with the foreground that can be read on it and the name that a person calls
/// it by.
struct HiLiteColor {
    platform::Color background;
    platform::Color foreground;
    const char* name;
};

/// The colours of the ten boxes, those of the swatches `lblColor`(0) to (9).
inline constexpr std::array<HiLiteColor, hiLiteBoxes> hiLiteColors = {{
    // clang-format off
    {{255,   0, 255}, platform::black, "Magenta"},
    {{255, 255,   0}, platform::black, "Yellow"},
    {{255,   0,   0}, platform::white, "Red"},
    {{  0, 255, 255}, platform::black, "Cyan"},
    {{  0, 255,   0}, platform::black, "Green"},
    {{  0, 128, 128}, platform::white, "Teal"},
    {{128,   0, 128}, platform::white, "Purple"},
    {{128, 128,   0}, platform::white, "Olive"},
    {{  0,   0, 255}, platform::white, "Blue"},
    {{  0,   0,   0}, platform::white, "Black"},
    // clang-format on
}};

/// A text for each box.
using BoxTexts = std::array<std::string, hiLiteBoxes>;

/// What the cells are compared with: the texts as they stand in the boxes, while the hi-lite is on.
struct HiLites {
    bool on = false;
    std::array<std::string_view, hiLiteBoxes> texts{};
};

}  // namespace ballhaven
