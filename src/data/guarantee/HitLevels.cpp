#include "data/guarantee/HitLevels.h"

#include <algorithm>

namespace ballhaven::data {

HitLevels::HitLevels(const PlayBits& plays, int largestSet, int mostHits)
    : wheel(plays),
      highestHits(mostHits),
      cells(static_cast<std::size_t>((largestSet + 1) * (mostHits + 1)) * plays.Words()) {
    for (int level = 0; level <= largestSet; ++level) {
        for (int play = 0; play < plays.Plays(); ++play) {
            const auto word = static_cast<std::size_t>(play / PlayBits::wordBits);
            cells[Index(level, 0) + word] |= PlayBits::Word{1} << play % PlayBits::wordBits;
        }
    }
}

void HitLevels::Add(int level, int number) {
    const PlayBits::Word* const holders = wheel.PlaysWith(number).data();
    for (int hits = std::min(level, highestHits); hits > 0; --hits) {
        const PlayBits::Word* const before = cells.data() + Index(level - 1, hits);
        const PlayBits::Word* const oneLess = cells.data() + Index(level - 1, hits - 1);
        PlayBits::Word* const now = cells.data() + Index(level, hits);
        for (std::size_t word = 0; word < wheel.Words(); ++word) {
            now[word] = before[word] | (oneLess[word] & holders[word]);
        }
    }
}

std::size_t HitLevels::Index(int level, int hits) const {
    return static_cast<std::size_t>(level * (highestHits + 1) + std::max(hits, 0)) * wheel.Words();
}

}  // namespace ballhaven::data
