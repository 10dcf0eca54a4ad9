#pragma once

#include "forms/MainForm.h"
#include "platform/controls/Color.h"
#include "platform/controls/Grid.h"
#include "state/AppState.h"

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

/// The boxes of the game's main picks, of its bonus picks, and of both.
[[nodiscard]] BoxRange MainBoxes();
[[nodiscard]] BoxRange BonusBoxes();
[[nodiscard]] BoxRange AllBoxes();

/// First box of a run whose text passes `matches`, which takes the text as it stands in the box; none if no box does,
/// or when the hi-lite is off.
template <typename Matches>
[[nodiscard]] std::optional<int> FindBox(BoxRange boxes, const Matches& matches) {
    if (appState.colorMode == 0) {
        return std::nullopt;
    }
    for (int box = std::max(0, boxes.first); box <= std::min(boxes.last, hiLiteBoxes - 1); ++box) {
        if (matches(*frmMainForm.txtHiLite[static_cast<std::size_t>(box)].text)) {
            return box;
        }
    }
    return std::nullopt;
}

}  // namespace ballhaven
