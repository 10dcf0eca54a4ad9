#pragma once

#include "platform/controls/Color.h"
#include "platform/controls/GridColumns.h"
#include "state/HiLiteBoxes.h"

#include <algorithm>
#include <optional>

namespace ballhaven {

/// The colour of a box (0 to 9).
[[nodiscard]] platform::Color HiLiteBackground(int box);

/// Sets the foreground that goes with the background. A background that is none of the ten colours leaves it as it is.
void ContrastRule(platform::CellStyle& style);

/// `ContrastRule` of the Historical Log, in which the system's window colour as a background gives red besides. A fixed
/// white is not that colour, whatever it looks like.
void LogContrastRule(platform::CellStyle& style);

/// A run of boxes, both ends included; empty where `last` is below `first`.
struct BoxRange {
    int first;
    int last;

    bool operator==(const BoxRange&) const = default;
};

/// The boxes of a game's main picks, of its bonus picks, and of both.
[[nodiscard]] BoxRange MainBoxes(int mainPicks);
[[nodiscard]] BoxRange BonusBoxes(int mainPicks, int bonusPicks);
[[nodiscard]] BoxRange AllBoxes(int mainPicks, int bonusPicks);

/// First box of a run whose text passes `matches`, which takes the text as it stands in the box; none if no box does,
/// or when the hi-lite is off.
template <typename Matches>
[[nodiscard]] std::optional<int> FindBox(const HiLites& hiLites, BoxRange boxes, const Matches& matches) {
    if (!hiLites.on) {
        return std::nullopt;
    }
    for (int box = std::max(0, boxes.first); box <= std::min(boxes.last, hiLiteBoxes - 1); ++box) {
        if (matches(hiLites.texts[static_cast<std::size_t>(box)])) {
            return box;
        }
    }
    return std::nullopt;
}

}  // namespace ballhaven
