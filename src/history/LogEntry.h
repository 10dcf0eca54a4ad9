#pragma once

#include <cstdint>
#include <string>

namespace ballhaven {

// What the user enters into the log's current row. The row's draw is found by its date.

/// The date of the draw in the log's current row, which it leaves in `dateSerial`; what stood there before where the
/// log has no current row.
std::int16_t LogDate();

/// Stores a typed text in a column (1 to `totalPicks`) of the log's current row as a pick, -1 for an empty text, in
/// every row of `historyView` and `HistoryTable` that has the row's date, and marks the tables stale. It does not mark
/// the history as dirty: a press of the mouse on the log does. Raises the overflow failure for a value beyond 16 bits.
void PostLogEdit(int column, const std::string& text);

/// Stores a card (1 to 52) in the log's current column, in every row of `historyView` and `HistoryTable` that has the
/// date of the log's current row, and marks the tables stale. On the date, or behind the last pick, nothing happens.
void SetLogCard(std::int16_t code);

}  // namespace ballhaven
