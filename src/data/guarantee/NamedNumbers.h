#pragma once

#include "state/GameRules.h"

#include <string_view>
#include <vector>

namespace ballhaven::data {

/// The main picks that a text names, ascending, each once: numbers with commas or blanks between, and stretches of them
/// such as 1-16, or cards such as Ah. Throws Refusal for what is no pick of the game, and where there is none.
[[nodiscard]] std::vector<int> NamedNumbers(const GameRules& rules, std::string_view text);

}  // namespace ballhaven::data
