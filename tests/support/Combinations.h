#pragma once

#include <vector>

namespace ballhaven::support {

using Combinations = std::vector<std::vector<int>>;

/// All combinations of k picks of a pool by the plainest way, each in the order of the pool, those of its first picks
/// first.
[[nodiscard]] Combinations AllCombinations(const std::vector<int>& pool, int k);

/// How many combinations of k out of n there are.
[[nodiscard]] double CombinationCount(int n, int k);

/// Fails the test unless combinations of k of the picks 0 to n - 1 are all that there are, each of them once, with its
/// picks ascending.
void ExpectEachOnce(const Combinations& combinations, int n, int k);

}  // namespace ballhaven::support
