#pragma once

#include <cstdint>
#include <string>

namespace ballhaven {

/// Whether a text can be taken as a pick in a column of a number game's log: empty, or a value within the limits of the
/// column's pool, a text without leading digits being 0. Always true for the date column, in a card game, and behind
/// the main picks of a game without bonus.
[[nodiscard]] bool IsPickInRange(int column, const std::string& text);

/// Stores a text in a column (1 to `totalPicks`) of the log's current row as a pick, -1 for an empty text, in every
/// row of `historyView` and `HistoryTable` that has the row's date, and marks the tables stale. It does not mark the
/// history as dirty: a press of the mouse on the log does.
void PostLogEdit(int column, const std::string& text);

/// Stores a card (1 to 52) in the log's current column, in every row of `historyView` and `HistoryTable` that has the
/// date of the log's current row, and marks the tables stale. On the date, or behind the last pick, nothing happens.
void SetLogCard(std::int16_t code);

/// Asks whether the draw of the log's current row is to go and, on Yes, takes the first draw of its date out of
/// `HistoryTable`, saves, and goes to the draw in the row behind it, else to the one before it. A log without draws
/// asks nothing. Raises the file failure.
void DeleteDraw();

}  // namespace ballhaven
