#pragma once

namespace ballhaven {

/// Puts the picks that came up again in the very next game of the view into `repeaterTable`: the most repeats first,
/// equal ones by ascending value. Candidates are the picks of `hotNumberTable`, which has to be current; they count in
/// all columns of both games, each pair of columns as one repeat. A candidate outside `mainLow` to `mainHigh` leaves a
/// row of zeros at the end. The direction of the log makes no difference. Sets `repeaterLast` (-1 for none),
/// `repeaterTable` (which stays as it was then), and, while Paired Once is on show, the caption of `grdHot`; clears
/// `repeaterStale`. Raises the overflow failure above 32767 repeats of a pick.
void ComputeRepeaters();

}  // namespace ballhaven
