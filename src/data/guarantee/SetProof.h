#pragma once

#include "data/guarantee/PlayBits.h"

#include <functional>
#include <span>

namespace ballhaven::data {

/// Who is told the sets of a wheel's numbers, one after another in lexicographic order, as places of chosen numbers.
struct SetListener {
    std::function<void(std::span<const int> set)> missed;         ///< no play hits so many of them
    std::function<void(std::span<const int> set, int play)> hit;  ///< this one does; empty where nobody wants to know
};

/// Tells every set of `drawn` (1 to 10) numbers, whether a play hits `hits` (1 to `drawn`) of them or not. There must
/// be as many numbers.
void TellSets(const PlayBits& plays, int drawn, int hits, const SetListener& listener);

}  // namespace ballhaven::data
