#pragma once

#include "state/HiLiteBoxes.h"

#include <cstdint>
#include <span>
#include <vector>

namespace ballhaven {

/// The picks of a draw that belong to boxes, one for each box of a game of `totalPicks`; -1 for a blank one.
[[nodiscard]] std::vector<std::int16_t> PicksOfBoxes(std::span<const std::int16_t> draw, int totalPicks);

/// Whether the boxes from the first on hold the codes of just these picks.
[[nodiscard]] bool HoldCodesOf(std::span<const std::int16_t> picks, const BoxTexts& codes);

/// What the ten boxes show, and the picks in them as stored codes.
struct BoxContents {
    BoxTexts texts;
    BoxTexts codes;

    bool operator==(const BoxContents&) const = default;
};

/// The boxes filled from the first on with the picks of a draw. A blank pick leaves its box empty.
[[nodiscard]] BoxContents BoxesWith(std::span<const std::int16_t> picks, int gameType);

}  // namespace ballhaven
