#pragma once

namespace ballhaven {

/// Reads the chosen picks of `currentGame` from SHUFFLE.CDB in `programDirectory` into a new `ShuffleTable`: the main
/// list, and the bonus list of a game with a bonus (by `gameType`). The picks close up from slot 1 on; -1 stands behind
/// them. Row 0 of the main list becomes the option that the file remembers, 0 for none.
///
/// A missing or empty file is created with blank lists for all games; one without bonus lists, from before there were
/// any, gets blank ones. Pending events are handled after either. A field that holds no number reads as pick 0. Raises
/// the file failure.
void LoadShuffleFile();

/// Writes the lists and the option to the records of `currentGame`, with the picks closed up. The bonus list is written
/// in a game with a bonus only; otherwise the file keeps the one it has. Of a cell number above 99 the first two digits
/// are stored. Raises the file failure.
void SaveShuffleFile();

}  // namespace ballhaven
