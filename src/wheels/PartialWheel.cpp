#include "wheels/PartialWheel.h"

#include "plays/PlayMethodCode.h"
#include "wheels/WheelRows.h"

namespace ballhaven {

void PartialWheelPass(const PickPass& pass, PlayStretch& plays, PlayPicks& table) {
    // QUIRK PARTIAL-WHEEL-FIRST-1: only the first combinations of the wheel are made, as many as there are to be plays.
    // Every other one is taken of these, not of the whole wheel: with many picks all plays begin with the same
    // favourites. Habits rest on it.
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
            PutRowIntoPlay(rows[row], pass, table, ++play);
        }
    }
}

}  // namespace ballhaven
