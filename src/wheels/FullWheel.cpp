#include "wheels/FullWheel.h"

#include "platform/Boxes.h"
#include "wheels/WheelRows.h"

namespace ballhaven {

namespace {

bool AsksToGoOn(int firstPlay) {
    return platform::Ask(firstPlay < 2 ? "The number of plays required to do a full wheel\n"
                                         "exceeds the total number of plays allowed.\n"
                                         "Do you wish to continue?"
                                       : "There are not enough empty plays to do a full wheel.\n\n"
                                         "Do you wish to continue?",
                         platform::BoxIcon::Question);
}

}  // namespace

// QUIRK FULL-WHEEL-NO-1: the bonus pass that follows a No still runs. Its walk has no rows, and it ends at the play
// before the first one: with plays in use the result then names a run from the first play back to the one before it,
// with a total of 0. Files and habits rest on it.
void FullWheelPass(const PickPass& pass, PlayStretch& plays, PlayPicks& table) {
    WheelRows rows = FillWheelRows(pass, plays);
    plays.lastPlay = rows.endRow;
    if (!rows.done) {
        --plays.lastPlay;
        if (pass.pickColumn == mainPicks && !AsksToGoOn(plays.firstPlay)) {
            plays.lastPlay = 0;
        }
    }
    for (int row = plays.firstPlay; row <= plays.lastPlay; ++row) {
        PutRowIntoPlay(rows[row], pass, table, row);
    }
}

}  // namespace ballhaven
