#pragma once

#include <string>

namespace ballhaven::bench {

/// Slots of the two games: each has 1000 draws of 10 picks out of 99, all in its history set, and 5000 plays.
inline constexpr int firstGame = 1;
inline constexpr int secondGame = 2;

/// The program directory of the games, with a separator at its end. The first call makes it, with files that the
/// program's own routines have written; it goes with the process.
[[nodiscard]] const std::string& GamesDirectory();

/// Switches to a game as its choice in the selector does. The first call starts with the game of the last use.
void SwitchTo(int slot);

}  // namespace ballhaven::bench
