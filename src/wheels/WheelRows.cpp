#include "wheels/WheelRows.h"

#include "plays/PlayMethodCode.h"

#include <algorithm>
#include <numeric>

namespace ballhaven {

namespace {

/// A combination of the places of a pool, ascending.
class Combination {
  public:
    Combination(std::size_t poolSize, int picks) : size(poolSize), places(static_cast<std::size_t>(picks)) {
        StartOver();
    }

    void StartOver() { std::iota(places.begin(), places.end(), std::size_t{0}); }

    /// Of no places there is one combination.
    [[nodiscard]] bool IsLast() const { return places.empty() || places.front() == HighestAt(0); }

    /// Goes on to the next combination; there must be one.
    void Step() {
        std::size_t raised = places.size() - 1;
        while (places[raised] == HighestAt(raised)) {
            --raised;
        }
        const auto first = places.begin() + static_cast<std::ptrdiff_t>(raised);
        std::iota(first, places.end(), *first + 1);
    }

    [[nodiscard]] std::span<const std::size_t> Places() const { return places; }

  private:
    [[nodiscard]] std::size_t HighestAt(std::size_t index) const { return size - places.size() + index; }

    std::size_t size;
    std::vector<std::size_t> places;
};

void WriteRow(WheelRows::Row row, const PickPass& pass, const Combination& combination) {
    row[0] = byFullWheel;
    std::ranges::transform(combination.Places(), row.begin() + 1,
                           [&pass](std::size_t place) { return pass.pool[place]; });
}

}  // namespace

WheelRows FillWheelRows(const PickPass& pass, PlayStretch& plays) {
    WheelRows rows;
    Combination combination(pass.pool.size(), pass.slotCount);
    rows.endRow = plays.firstPlay;
    while (rows.endRow <= plays.lastPlay) {
        WriteRow(rows[rows.endRow], pass, combination);
        if (!combination.IsLast()) {
            combination.Step();
        } else if (pass.pickColumn == bonusPicks && rows.endRow < plays.plannedLast) {
            combination.StartOver();
        } else {
            rows.done = true;
            break;
        }
        ++rows.endRow;
    }
    if (pass.pickColumn == mainPicks && rows.done && rows.endRow < plays.lastPlay) {
        plays.lastPlay = rows.endRow;
        plays.plannedLast = rows.endRow;
    }
    return rows;
}

void PutRowIntoPlay(WheelRows::Row row, const PickPass& pass, PlayPicks& table, int play) {
    std::ranges::copy(row.first(static_cast<std::size_t>(pass.slotCount) + 1),
                      table.EntriesOf(pass.pickColumn, play).begin());
}

}  // namespace ballhaven
