#include "wheels/PartialWheel.h"

#include "plays/PlayMethodCode.h"
#include "wheels/WheelRows.h"

namespace ballhaven {

void PartialWheelPass(const PickPass& pass, PlayStretch& plays, PlayPicks& table, int firstFilled) {
    // QUIRK PARTIAL-WHEEL-FIRST-1: only the first combinations of the wheel are made, as many as there are to be plays.
    // Every other one is taken of these, not of the whole wheel: with many picks all plays begin with the same
    // favourites. Habits rest on it.
    WheelRows rows = FillWheelRows(pass, plays);
    if (rows.endRow < plays.lastPlay) {
        plays.lastPlay = rows.endRow;
        plays.plannedLast = rows.endRow;
    }
    int play = firstFilled;
    for (const int start : {plays.firstPlay, plays.firstPlay + 1}) {
        for (int row = start; row <= plays.plannedLast; row += 2) {
            rows[row][0] = byPartialWheel;
            PutRowIntoPlay(rows[row], pass, table, play++);
        }
    }
}

}  // namespace ballhaven
