#include "data/guarantee/PlayBits.h"

#include <algorithm>
#include <bit>

namespace ballhaven::data {

PlayBits::PlayBits(int numberCount, std::span<const std::vector<int>> plays)
    : numbers(numberCount),
      playCount(static_cast<int>(plays.size())),
      words((plays.size() + wordBits - 1) / wordBits),
      bits(static_cast<std::size_t>(numberCount) * words) {
    for (std::size_t play = 0; play < plays.size(); ++play) {
        for (const int number : plays[play]) {
            bits[static_cast<std::size_t>(number) * words + play / wordBits] |= Word{1} << play % wordBits;
        }
    }
}

int CountPlays(std::span<const PlayBits::Word> plays) {
    int count = 0;
    for (const PlayBits::Word word : plays) {
        count += std::popcount(word);
    }
    return count;
}

int FirstPlay(std::span<const PlayBits::Word> plays) {
    const auto found = std::ranges::find_if(plays, [](PlayBits::Word word) { return word != 0; });
    return found == plays.end()
               ? -1
               : static_cast<int>(found - plays.begin()) * PlayBits::wordBits + std::countr_zero(*found);
}

}  // namespace ballhaven::data
