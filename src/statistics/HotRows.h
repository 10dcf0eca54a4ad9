#pragma once

#include "state/RuntimeFailure.h"
#include "state/Table.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <tuple>
#include <vector>

namespace ballhaven {

/// Values that a pick can have: 0 to 1000.
inline constexpr int pickValues = 1001;

/// Picks by their lowest and highest value, both included.
struct PickRange {
    std::int16_t low;
    std::int16_t high;

    [[nodiscard]] bool Holds(int pick) const { return low <= pick && pick <= high; }

    bool operator==(const PickRange&) const = default;
};

// The rows of the hot tables, in the order of their table: the most hits first, equal ones by ascending picks. `Cells`
// are what stands in columns 1 and up of the table. A row that nothing was written into holds zeros.

/// A pick with its hits, or its repeats.
struct PickHits {
    std::int16_t pick = 0;
    std::int32_t hits = 0;

    [[nodiscard]] bool IsWithin(PickRange range) const { return range.Holds(pick); }
    [[nodiscard]] std::array<std::int32_t, 2> Cells() const { return {pick, hits}; }

    auto operator<=>(const PickHits& other) const { return std::tie(other.hits, pick) <=> std::tie(hits, other.pick); }
    bool operator==(const PickHits&) const = default;
};

/// Two picks of one game, by value.
struct PickPair {
    std::int16_t lower = 0;
    std::int16_t higher = 0;

    [[nodiscard]] bool IsWithin(PickRange range) const { return range.Holds(lower) && range.Holds(higher); }
    [[nodiscard]] std::array<std::int32_t, 2> Cells() const { return {lower, higher}; }

    auto operator<=>(const PickPair&) const = default;
};

/// The pair of two picks in either order.
[[nodiscard]] inline PickPair PairOf(std::int16_t pick, std::int16_t otherPick) {
    return {std::min(pick, otherPick), std::max(pick, otherPick)};
}

/// Two picks with the games in which they stand together.
struct PairHits {
    PickPair picks;
    std::int16_t hits = 0;

    [[nodiscard]] bool IsWithin(PickRange range) const { return picks.IsWithin(range); }
    [[nodiscard]] std::array<std::int32_t, 3> Cells() const { return {picks.lower, picks.higher, hits}; }

    auto operator<=>(const PairHits& other) const {
        return std::tie(other.hits, picks) <=> std::tie(hits, other.picks);
    }
    bool operator==(const PairHits&) const = default;
};

/// For a table that takes as many rows, and as many repeats, as there are.
inline constexpr std::ptrdiff_t noLimit = std::numeric_limits<std::ptrdiff_t>::max();

/// What was found for a table.
template <typename Row>
struct FoundRows {
    std::vector<Row> rows;  ///< in the order of the table, or, after a failure, as found
    std::optional<RuntimeFailure::Kind>
        failure;  ///< the one that broke the search off, which the table's routine raises
};

/// Puts rows into the order of their table. Those with a pick outside the main range become rows of zeros at the end.
template <typename Row>
void SortRows(std::vector<Row>& rows, PickRange mainPicks) {
    const auto count = rows.size();
    // QUIRK PAIR-ZEROS-1: a pair with a pick below the main range has a row, but the sort, which walks the main range,
    // never comes to it, and the row stays 0, 0 at the end. Habits rest on the number of rows. So does a repeater below
    // the main range.
    std::erase_if(rows, [mainPicks](const Row& row) { return !row.IsWithin(mainPicks); });
    std::ranges::sort(rows);
    rows.resize(count);
}

/// A table of so many columns with these rows in its columns 1 and up.
template <typename Row>
[[nodiscard]] CountTable TableOf(const std::vector<Row>& rows, int columns) {
    CountTable table(columns, static_cast<int>(rows.size()));
    for (int line = 0; const Row& row : rows) {
        std::ranges::copy(row.Cells(), table.Row(line++).begin() + 1);
    }
    return table;
}

}  // namespace ballhaven
