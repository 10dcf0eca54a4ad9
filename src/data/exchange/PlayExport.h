#pragma once

#include "state/AppState.h"
#include "state/GameRules.h"

#include <string>

namespace ballhaven::data {

/// A game's plays that have a pick as comma-separated values with a header: slip, line, how the play was made, and its
/// picks in their slots, as numbers or as the texts of cards. An empty slot is an empty field, a cell that is none of
/// the game's picks "?".
[[nodiscard]] std::string CsvOfPlays(const GameRules& rules, const PlayPicks& plays);

}  // namespace ballhaven::data
