#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace ballhaven::data {

/// How many sets of some numbers there are.
class SetCounts {
  public:
    static constexpr int mostNumbers = 100;  // from 0 to 99
    static constexpr int largestSet = 10;

    SetCounts();

    /// The sets of `size` (0 to 10) out of `numbers` (0 to 100) numbers.
    [[nodiscard]] std::uint64_t operator()(int numbers, int size) const {
        return counts[static_cast<std::size_t>(numbers)][static_cast<std::size_t>(size)];
    }

  private:
    std::array<std::array<std::uint64_t, largestSet + 1>, mostNumbers + 1> counts{};
};

}  // namespace ballhaven::data
