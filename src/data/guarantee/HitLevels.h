#pragma once

#include "data/guarantee/PlayBits.h"

namespace ballhaven::data {

/// How many numbers of a set the plays hit, while the set grows and shrinks at its end. Level n is for its first n
/// numbers; a level that was made stays until it is made anew.
class HitLevels {
  public:
    /// For sets of up to `largestSet` numbers, and hits up to `mostHits`.
    HitLevels(const PlayBits& plays, int largestSet, int mostHits);

    /// Makes a level (from 1) from the one below it and the number that comes to the set.
    void Add(int level, int number);

    /// The plays with at least so many hits; all plays for 0 and less, none for more than the level has numbers.
    [[nodiscard]] std::span<const PlayBits::Word> AtLeast(int level, int hits) const {
        return std::span(cells).subspan(Index(level, hits), wheel.Words());
    }

  private:
    [[nodiscard]] std::size_t Index(int level, int hits) const;

    const PlayBits& wheel;
    int highestHits;
    std::vector<PlayBits::Word> cells;
};

}  // namespace ballhaven::data
