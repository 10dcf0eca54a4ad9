#pragma once

#include "state/AppState.h"

#include <cstdint>

namespace ballhaven {

/// The five tables of `grdHot` by `hotTableChoice`.
enum class HotTable : std::int16_t { HotNumbers = 1, HotPairs, PairedOnce, Repeaters, NoHitters };

/// The picks of a draw that count in the statistics, by `hotSortChoice`.
enum class CountedPicks : std::int16_t { Main, Bonus, All };

/// The table that the hot selector shows.
[[nodiscard]] inline HotTable ShownHotTable() {
    return HotTable{appState.hotTableChoice};
}

}  // namespace ballhaven
