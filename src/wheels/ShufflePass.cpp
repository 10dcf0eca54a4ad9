#include "wheels/ShufflePass.h"

#include "plays/PickSlots.h"
#include "plays/PlayMethodCode.h"

#include <algorithm>
#include <span>

namespace ballhaven {

namespace {

/// The pick at a place of the pool that a number from 0 up to 1 stands for.
std::int16_t PickAt(const std::vector<std::int16_t>& pool, float number) {
    const auto place = static_cast<std::size_t>(static_cast<double>(pool.size()) * static_cast<double>(number));
    return pool[std::min(place, pool.size() - 1)];
}

/// Whether a pick of the pool is missing from a play.
bool MissesOne(std::span<const std::int16_t> slots, const std::vector<std::int16_t>& pool) {
    return std::ranges::any_of(pool, [slots](std::int16_t pick) { return !Holds(slots, pick); });
}

}  // namespace

void ShufflePass(const PickPass& pass, const PlayStretch& plays, PlayPicks& table, const std::function<float()>& draw) {
    const auto slotCount = static_cast<std::size_t>(pass.slotCount);
    int play = plays.firstPlay;
    while (play <= plays.lastPlay) {
        table(mainPicks, play, 0) = byShuffle;
        const std::int16_t pick = PickAt(pass.pool, draw());
        const std::span<std::int16_t> slots = table.Slots(pass.pickColumn, play).first(slotCount);
        const auto empty = std::ranges::find(slots, emptySlot);
        if (empty == slots.end()) {
            // QUIRK SHUFFLE-FULL-PLAY-1: the pick that was drawn for a full play opens the next one, unasked whether
            // that has a pick there, and also where it stands behind the last play of the run. Files and habits rest
            // on it.
            if (++play <= playCount) {
                table(pass.pickColumn, play, 1) = pick;
            }
        } else if (!Holds(slots, pick)) {
            *empty = pick;
            play += empty + 1 == slots.end() ? 1 : 0;
        } else if (!MissesOne(slots, pass.pool)) {
            ++play;
        }
    }
}

}  // namespace ballhaven
