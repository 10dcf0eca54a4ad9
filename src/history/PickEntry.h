#pragma once

#include "state/GameRules.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace ballhaven {

/// The value of a text that was typed as a pick, that of its leading digits; none for an empty text.
[[nodiscard]] std::optional<std::int64_t> TypedPick(std::string_view text);

/// Whether a value can be taken as a pick in a column of a number game's log: none, or one within the limits of the
/// column's pool. Always true for the date column, in a card game, and behind the main picks of a game without bonus.
[[nodiscard]] bool IsPickInRange(const GameRules& rules, int column, std::optional<std::int64_t> value);

/// Puts a pick, or -1 for none, into a column (1 to `totalPicks`) of every row of `historyView` and `HistoryTable` that
/// has a date, and marks the tables stale. It does not mark the history as dirty.
void StorePick(std::int16_t date, int column, std::int16_t pick);

}  // namespace ballhaven
