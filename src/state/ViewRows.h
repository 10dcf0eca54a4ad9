#pragma once

#include <cstdint>
#include <span>

namespace ballhaven {

/// First row of `historyView` with a date, as its serial; -1 if it has none.
[[nodiscard]] int RowOfDate(std::int16_t date);

/// The picks of a row of `historyView`, columns 1 to `totalPicks`, -1 for a blank cell. Fewer, or none, where the view
/// has no such columns or no such row.
[[nodiscard]] std::span<const std::int16_t> PicksOfDraw(int row);

}  // namespace ballhaven
