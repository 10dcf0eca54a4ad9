#pragma once

#include "wheels/WheelRun.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace ballhaven {

/// The rows of a wheel before they become plays. Row r stands for play r, from 0 to 5000: entry 0 is the way in which
/// the play is made, 0 in a row that nothing was written into; the entries from 1 on are its picks.
class WheelRows {
  public:
    using Row = std::span<std::int16_t, picksPerPlay + 1>;

    [[nodiscard]] Row operator[](int row) { return Row(&cells[static_cast<std::size_t>(row) * width], width); }

    int endRow = 0;     ///< the row at which the walk over the combinations stopped
    bool done = false;  ///< the last combination that was wanted has its row

  private:
    static constexpr std::size_t width = picksPerPlay + 1;

    std::vector<std::int16_t> cells = std::vector<std::int16_t>(width * (playCount + 1));
};

/// Writes the combinations of the pool, as many picks at a time as a play has, into the rows of a stretch of plays: in
/// the order of the pool, the last pick running fastest. Those of the main picks stop at the last combination, where
/// `lastPlay` and `plannedLast` become that row if it stands before the end of the stretch. Those of the bonus picks
/// start over on the next row until the planned end.
///
/// Without a stop `endRow` is the row behind the stretch, or its first where it has none.
[[nodiscard]] WheelRows FillWheelRows(const PickPass& pass, PlayStretch& plays);

/// Makes a row a play's: its way of being made, and its picks in the slots of the pass. Slots behind them stay.
void PutRowIntoPlay(WheelRows::Row row, const PickPass& pass, PlayPicks& table, int play);

}  // namespace ballhaven
