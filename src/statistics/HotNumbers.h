#pragma once

#include <cstdint>
#include <string_view>

#include "state/AppState.h"

namespace ballhaven {

/// Values that a pick can have: 0 to 1000.
inline constexpr int pickValues = 1001;

/// The five tables of `grdHot` by `hotTableChoice`.
enum class HotTable : std::int16_t { HotNumbers = 1, HotPairs, PairedOnce, Repeaters, NoHitters };

/// The picks of a draw that count in the statistics, by `hotSortChoice`.
enum class CountedPicks : std::int16_t { Main, Bonus, All };

/// The table that the hot selector shows.
[[nodiscard]] inline HotTable ShownHotTable() {
    return HotTable{appState.hotTableChoice};
}

/// Counts how often each pick stands in `historyView`, in the columns that `hotSortChoice` takes in, and puts the picks
/// from 0 to `mainHigh` that came up into `hotNumberTable`: the most frequent first, equal ones by ascending value. A
/// pick that stands twice in one draw counts twice; blank cells count for nothing. Then it rebuilds the table on show.
/// Sets `hotNumberTable` (which stays as it was where nothing came up), `hotNumberLast`, and of the main window
/// `hotRowCount` and the rows, the caption and the current cell of `grdHot`.
void ComputeHotTable();

/// Sets the caption of `grdHot` to a table's words with the number of games of the view: "Hot Pairs" gives "Hot Pairs
/// in last 25 games".
void ShowHotCaption(std::string_view words);

/// Sets the caption of `grdHot` to that of a table without rows: "Pairs" gives "Pairs (none found)".
void ShowNoneFoundCaption(std::string_view words);

/// Sets the caption of `grdHot` to that of Hot Numbers or Hot Cards, with or without rows as `hotNumberLast` says.
void ShowHotNumbersCaption();

}  // namespace ballhaven
