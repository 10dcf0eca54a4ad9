#pragma once

#include "state/AppState.h"
#include "state/GameRules.h"

#include <string>
#include <string_view>

namespace ballhaven::data {

/// The columns in front of a play's picks.
inline constexpr std::string_view playColumnNames = "slip,line,method";
inline constexpr std::size_t playColumns = 3;

/// A game's plays that have a pick as comma-separated values with a header: slip, line, how the play was made, and its
/// picks in their slots, as numbers or as the texts of cards. An empty slot is an empty field, a cell that is none of
/// the game's picks "?".
[[nodiscard]] std::string CsvOfPlays(const GameRules& rules, const PlayPicks& plays);

}  // namespace ballhaven::data
