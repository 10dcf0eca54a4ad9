#pragma once

#include <vector>

namespace ballhaven::support {

/// Plays of a wheel, each as ascending places of the chosen numbers.
using WheelPlays = std::vector<std::vector<int>>;

/// The numbers from 0 to `count` - 1.
[[nodiscard]] std::vector<int> NumbersBelow(int count);

/// How many plays hold at least `hits` numbers of a set, counted play by play.
[[nodiscard]] int PlaysThatHit(const WheelPlays& plays, const std::vector<int>& set, int hits);

/// The plays that leave out, of the numbers 0 to `numbers` - 1, one of the given sets each.
[[nodiscard]] WheelPlays PlaysWithout(int numbers, const WheelPlays& leftOut);

/// The 132 plays of 6 of 12 numbers of which every 5 numbers stand together in exactly one: all images of the squares
/// modulo 11, with one more point at infinity (number 11), under adding 1 and the negative reciprocal.
[[nodiscard]] WheelPlays SteinerPlaysOfTwelve();

}  // namespace ballhaven::support
