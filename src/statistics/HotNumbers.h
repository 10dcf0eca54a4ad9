#pragma once

#include "state/ViewRows.h"
#include "statistics/HotRows.h"
#include "statistics/HotTableKinds.h"

#include <cstdint>
#include <vector>

namespace ballhaven {

/// The columns of picks that count: all `totalPicks` in a game without bonus picks and under `All`; else those of the
/// main picks or, behind them, the last `bonusPicks` ones.
[[nodiscard]] PickColumns CountedColumns(int gameType, int totalPicks, int bonusPicks, CountedPicks counted);

/// The picks from 0 to `highest` that stand in some draws, with the number of times: the most frequent first, equal
/// ones by ascending value. A pick that stands twice in one draw counts twice; blank cells count for nothing.
[[nodiscard]] std::vector<PickHits> FindHotNumbers(const DrawRows& draws, int highest);

/// Puts the picks of `historyView`, in the columns that `hotSortChoice` takes in, up to `mainHigh`, into
/// `hotNumberTable`, as `FindHotNumbers` finds them. Sets `hotNumberTable` (which stays as it was where nothing came
/// up) and `hotNumberLast`.
void CountHotNumbers();

/// The picks of `hotNumberTable` in the order of its rows: the candidates of the tables that are made from it.
[[nodiscard]] std::vector<std::int16_t> HotNumberPicks();

}  // namespace ballhaven
