#include "plays/PickSlots.h"

#include "plays/PlayMethodCode.h"

#include <algorithm>

namespace ballhaven {

bool Holds(std::span<const std::int16_t> slots, std::int16_t pick) {
    return std::ranges::find(slots, pick) != slots.end();
}

void EmptyPlay(PlayPicks& plays, int play) {
    std::ranges::fill(plays.Slots(mainPicks, play), emptySlot);
    std::ranges::fill(plays.Slots(bonusPicks, play), emptySlot);
    plays(mainPicks, play, 0) = byHand;
}

}  // namespace ballhaven
