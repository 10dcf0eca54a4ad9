#pragma once

#include "state/Table.h"
#include "state/ViewRows.h"
#include "statistics/HotRows.h"
#include "support/MainScreen.h"

#include <ostream>
#include <vector>

namespace ballhaven {

// How tests print the rows of the hot tables.
std::ostream& operator<<(std::ostream& out, const PickHits& row);
std::ostream& operator<<(std::ostream& out, const PickPair& row);
std::ostream& operator<<(std::ostream& out, const PairHits& row);

namespace support {

/// A view of these draws, without dates: a row for each, with as many picks as the longest has, -1 where one ends.
[[nodiscard]] Table ViewOf(const std::vector<DrawPicks>& draws);

/// All draws of a view with all their picks.
[[nodiscard]] DrawRows AllDraws(const Table& view);

}  // namespace support
}  // namespace ballhaven
