#pragma once

#include <cstdint>

namespace ballhaven::platform {

/// A source of random numbers. A reseed stirs something new into its state and keeps the rest, so that reseeding before
/// every number, however fast, gives other numbers all the same.
class Chance {
  public:
    /// Stirs the ticks of a clock, or anything else, into the state.
    void Reseed(std::uint64_t ticks);

    /// The next number: from 0 up to but not 1, all 2 to the power of 24 of single precision equally likely.
    [[nodiscard]] float Next();

  private:
    std::uint64_t state = 0;
};

}  // namespace ballhaven::platform
