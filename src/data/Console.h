#pragma once

#include <ostream>

namespace ballhaven::data {

/// Where a command writes, in UTF-8: results to `out`, what goes beside them (progress, warnings) to `notes`.
struct Console {
    std::ostream& out;
    std::ostream& notes;
    bool notesAreWatched = false;  ///< `notes` is a terminal, so progress may be drawn on one line over and over
};

}  // namespace ballhaven::data
