#pragma once

#include <cstdint>

namespace ballhaven {

/// Reads the draws of `currentGame` from its file, GAME01.CDB to GAME20.CDB in `programDirectory`, into a new
/// `HistoryTable` of `totalPicks` columns of picks, and sets `historyLast` to the number of draws less 1. Rows keep
/// their place in the file; a row without a date is 0 in all its cells. In a mended folder they close up.
///
/// A missing or empty file is created with 1000 blank rows; one that holds 100 rows or fewer, from before there were
/// 1000, is brought to that size with its rows. Pending events are handled after either. A field that holds no number
/// reads as 0. Raises the file failure.
void LoadHistory();

/// Writes all 1000 rows of `HistoryTable` to the file of `currentGame`, and clears `historyDirty`. A row without a date
/// becomes blanks. With `clearMark` 1 the mark in columns 12-13 of the header is blanked, as the deletion of a game
/// wants it; in a mended folder the header gets the mark of five-digit dates; otherwise it stays as it is. Dates are
/// kept in as many digits as the header says. Raises the file failure.
void SaveHistory(std::int16_t clearMark);

}  // namespace ballhaven
