#pragma once

#include "state/AppState.h"
#include "state/GameRules.h"

#include <span>
#include <vector>

namespace ballhaven::data {

/// The plays of a game as a wheel over chosen numbers.
struct Wheel {
    std::vector<int> numbers{};             ///< or cards, ascending
    std::vector<int> plays{};               ///< the plays with all their main picks, 1 to 5000
    std::vector<std::vector<int>> holds{};  ///< for each of them the places of the chosen numbers that it holds
    std::vector<int> partPlays{};           ///< those with some main picks only, or with one twice: no part of it
};

/// The wheel of the plays over the chosen numbers, ascending; without any, over all that its plays hold.
[[nodiscard]] Wheel WheelOf(const GameRules& rules, const PlayPicks& plays, const std::vector<int>& chosen);

/// The chosen numbers at some of their places.
[[nodiscard]] std::vector<int> NumbersAt(const Wheel& wheel, std::span<const int> places);

/// The main picks that were chosen for wheels, ascending, each once.
[[nodiscard]] std::vector<int> ChosenNumbers(const GameRules& rules, const ChosenPicks& chosen);

}  // namespace ballhaven::data
