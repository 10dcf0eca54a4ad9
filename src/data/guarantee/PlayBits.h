#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace ballhaven::data {

/// The plays of a wheel as bit sets: which plays hold a chosen number. The chosen numbers go by their places, from 0,
/// and so do the plays: play p is bit p % 64 of word p / 64.
class PlayBits {
  public:
    using Word = std::uint64_t;
    static constexpr int wordBits = 64;

    /// Each play as the places of the chosen numbers that it holds.
    PlayBits(int numberCount, std::span<const std::vector<int>> plays);

    [[nodiscard]] int Numbers() const { return numbers; }
    [[nodiscard]] int Plays() const { return playCount; }
    [[nodiscard]] std::size_t Words() const { return words; }

    /// The plays that hold a number.
    [[nodiscard]] std::span<const Word> PlaysWith(int number) const {
        return std::span(bits).subspan(static_cast<std::size_t>(number) * words, words);
    }

  private:
    int numbers;
    int playCount;
    std::size_t words;
    std::vector<Word> bits;
};

/// How many plays stand in a set.
[[nodiscard]] int CountPlays(std::span<const PlayBits::Word> plays);

/// The first play of a set; -1 in an empty one.
[[nodiscard]] int FirstPlay(std::span<const PlayBits::Word> plays);

}  // namespace ballhaven::data
