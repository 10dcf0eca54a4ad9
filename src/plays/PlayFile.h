#pragma once

namespace ballhaven {

/// Reads the plays of `currentGame` from its file, PLAYS01.CDB to PLAYS20.CDB in `programDirectory`, into a new
/// `PlayTable`, in all their slots, whatever the game's counts of picks.
///
/// A missing or empty file is created with 5000 empty plays; one that holds 1000 plays or fewer, from before there were
/// 5000, is brought to that size with its plays. Pending events are handled after either. A field that holds no number
/// reads as 0. Raises the file failure.
void LoadPlayFile();

/// Writes all plays to the file of `currentGame`; clearing `playsDirty` is the caller's. Of a cell number above 99 the
/// first two digits are stored. Raises the file failure.
void SavePlayFile();

/// Empties every play in memory, sets `playsDirty`, and has the boards read again. Touches no file.
void ClearAllPlays();

}  // namespace ballhaven
