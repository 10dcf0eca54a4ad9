#pragma once

#include "data/guarantee/Wheel.h"

#include <functional>
#include <string_view>

namespace ballhaven::data {

/// What a proof shows of the sets of chosen numbers.
enum class ProofOf {
    MissedSets,  ///< those of which no play hits enough
    HitSets,     ///< the others, each with a play that does
};

/// Tells a proof as CSV, line by line with their ends: headings, then a line a set, in ascending order. Whoever has the
/// plays can check each line by looking at them.
void TellProof(const GameRules& rules, const Wheel& wheel, int drawn, int hits, ProofOf kind,
               const std::function<void(std::string_view line)>& tell);

}  // namespace ballhaven::data
