#pragma once

#include "data/guarantee/PlayBits.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace ballhaven::data {

/// Of a work that takes a while: told again and again which share of it, 0 to 1, is done.
using ShareReport = std::function<void(double share)>;

/// What the plays of a wheel do when some of the chosen numbers are drawn.
struct Guarantee {
    int drawn = 0;               ///< how many of the chosen numbers are drawn
    int hits = 0;                ///< how many of those a play has to hold
    std::uint64_t sets = 0;      ///< the sets of numbers that can be drawn so
    std::uint64_t missed = 0;    ///< those for which no play hits so many; the guarantee holds where there are none
    int leastPlays = 0;          ///< the plays that hit so many, for the set with the fewest of them
    std::vector<int> weakest{};  ///< that set as places of chosen numbers, the first one in lexicographic order

    bool operator==(const Guarantee&) const = default;
};

/// The guarantees of a wheel for every set of `drawn` (1 to 10) of its numbers, each number of hits from `fewestHits`
/// (1) to `mostHits` (at most `drawn`) in its turn. There must be as many numbers.
[[nodiscard]] std::vector<Guarantee> FindGuarantees(const PlayBits& plays, int drawn, int fewestHits, int mostHits,
                                                    const ShareReport& report);

}  // namespace ballhaven::data
