#include "wheels/PartialWheel.h"

#include "plays/PlayMethodCode.h"
#include "wheels/WheelRows.h"

#include <algorithm>

namespace ballhaven {

void PartialWheelPass(const PickPass& pass, PlayStretch& plays, PlayPicks& table) {
    WheelRows rows = FillWheelRows(pass, plays);
    if (rows.endRow < plays.lastPlay) {
        plays.lastPlay = rows.endRow;
        plays.plannedLast = rows.endRow;
    }
    // QUIRK PARTIAL-WHEEL-PLACE-1: the plays are counted from 1, not from the first play of the run. After a No to the
    // question about clearing the slips the first plays are overwritten, while the result names the plays behind those
    // in use. Files and habits rest on it.
    int play = 0;
    for (const int start : {plays.firstPlay, plays.firstPlay + 1}) {
        for (int row = start; row <= plays.plannedLast; row += 2) {
            rows[row][0] = byPartialWheel;
            std::ranges::copy(rows[row].first(static_cast<std::size_t>(pass.slotCount) + 1),
                              table.EntriesOf(pass.pickColumn, ++play).begin());
        }
    }
}

}  // namespace ballhaven
