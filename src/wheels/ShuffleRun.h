#pragma once

#include "wheels/WheelRun.h"

#include <string>
#include <string_view>

namespace ballhaven {

/// What a run leaves to be shown.
struct RunResult {
    enum class End {
        Done,      ///< the texts tell which plays were made; they are empty after a wheel that was declined
        Refused,   ///< what was shown of the run before stays
        BadTotal,  ///< likewise, and the total is to be typed anew
    };

    End end = End::Refused;
    std::string firstPlay = {};  ///< such as "12.A"
    std::string lastPlay = {};
    std::string plays = {};  ///< their number
};

/// Makes plays of the chosen picks of the current game: as many as the text of a Total Plays box says, or as a full
/// wheel takes. Refuses too few picks, then a total of 1 or less or above 5000, then too few empty plays, each with a
/// message. Plays in use are emptied before if the user says so, else the new ones follow the last one in use.
///
/// Waiting events are handled when the plays have been emptied. A run that is asked for meanwhile is refused, and so is
/// this one itself if they lead to another game or close the Wheel and Shuffle window.
///
/// Changes `PlayTable` and sets `playsDirty`. Has the boards read again, and where the Play Slips window is open and
/// shows none of the new plays, goes to the first slip of them in `currentSlip`.
RunResult RunShuffleOrWheel(WheelMode mode, std::string_view totalPlays);

}  // namespace ballhaven
