#include "support/Combinations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <string>

namespace ballhaven::support {

// All masks of as many bits as the pool has picks, with k ones.
Combinations AllCombinations(const std::vector<int>& pool, int k) {
    Combinations all;
    std::vector<int> mask(pool.size(), 0);
    std::fill(mask.begin(), mask.begin() + k, 1);
    do {
        std::vector<int> picks;
        for (std::size_t place = 0; place < pool.size(); ++place) {
            if (mask[place] == 1) {
                picks.push_back(pool[place]);
            }
        }
        all.push_back(picks);
    } while (std::prev_permutation(mask.begin(), mask.end()));
    return all;
}

double CombinationCount(int n, int k) {
    double count = 1;
    for (int i = 1; i <= k; ++i) {
        count = count * (n - k + i) / i;
    }
    return count;
}

void ExpectEachOnce(const Combinations& combinations, int n, int k) {
    SCOPED_TRACE(std::to_string(k) + " of " + std::to_string(n));
    for (const std::vector<int>& picks : combinations) {
        EXPECT_EQ(picks.size(), static_cast<std::size_t>(k));
        EXPECT_TRUE(std::ranges::is_sorted(picks, std::less_equal<>()));
        EXPECT_TRUE(0 <= picks.front() && picks.back() < n);
    }
    const std::set<std::vector<int>> different(combinations.begin(), combinations.end());
    EXPECT_EQ(different.size(), combinations.size());
    EXPECT_EQ(std::ssize(combinations), std::lround(CombinationCount(n, k)));
}

}  // namespace ballhaven::support
