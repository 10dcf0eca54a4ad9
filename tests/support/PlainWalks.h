#pragma once

#include "state/Table.h"

#include <string>

namespace ballhaven::support {

/// A hot table with all that its builder leaves: the rows (for No-Hitters one column of picks), the last row, the stale
/// flag and the caption of `grdHot`.
struct BuiltTable {
    CountTable rows;
    int last = -1;
    bool isStale = true;
    std::string caption;

    bool operator==(const BuiltTable&) const = default;
};

/// The four tables as they stand in `appState`, with the caption of the main window.
[[nodiscard]] BuiltTable BuiltHotPairs();
[[nodiscard]] BuiltTable BuiltPairedOnce();
[[nodiscard]] BuiltTable BuiltRepeaters();
[[nodiscard]] BuiltTable BuiltNoHitters();

/// What the builders do, in the plainest words: every candidate, or pair of candidates, is looked for in every draw of
/// the view, and the rows are sorted by walking all counts and all values. They read `appState`, change only the table
/// that is given to them, and raise the same failures.
void WalkHotPairs(BuiltTable& built);
void WalkPairedOnce(BuiltTable& built);
void WalkRepeaters(BuiltTable& built);
void WalkNoHitters(BuiltTable& built);

}  // namespace ballhaven::support
