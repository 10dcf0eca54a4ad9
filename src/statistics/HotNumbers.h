#pragma once

namespace ballhaven {

/// Values that a pick can have: 0 to 1000.
inline constexpr int pickValues = 1001;

/// Counts how often each pick stands in `historyView`, in the columns that `hotSortChoice` takes in, and puts the picks
/// from 0 to `mainHigh` that came up into `hotNumberTable`: the most frequent first, equal ones by ascending value. A
/// pick that stands twice in one draw counts twice; blank cells count for nothing. Sets `hotNumberTable` (which stays
/// as it was where nothing came up) and `hotNumberLast`.
void CountHotNumbers();

}  // namespace ballhaven
