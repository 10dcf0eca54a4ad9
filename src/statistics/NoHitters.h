#pragma once

namespace ballhaven {

/// Puts the main picks that stand in no game of the view, in no column, into `noHitterTable`, in ascending order;
/// `hotSortChoice` makes no difference. They are looked for from `mainLow` to `mainHigh`; in a game that allows
/// duplicates only to its share for one pick, `mainHigh` \ `mainPickCount`, and one less where `mainLow` is 0. An empty
/// view lists them all. Sets `noHitterLast` (-1 for none), `noHitterTable` (which stays as it was then), and, while
/// Repeaters is on show, the caption of `grdHot`; clears `noHitterStale`.
void ComputeNoHitters();

}  // namespace ballhaven
