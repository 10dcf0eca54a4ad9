#include "data/guarantee/SetCounts.h"

namespace ballhaven::data {

SetCounts::SetCounts() {
    for (std::size_t numbers = 0; numbers < counts.size(); ++numbers) {
        counts[numbers][0] = 1;
        for (std::size_t size = 1; numbers > 0 && size <= largestSet; ++size) {
            counts[numbers][size] = counts[numbers - 1][size - 1] + counts[numbers - 1][size];
        }
    }
}

}  // namespace ballhaven::data
