#pragma once

namespace ballhaven {

/// Fills `cboList`(0), Select Game, with the names of the 20 slots as their records hold them, and selects that of
/// `currentGame`. Raises the file failure when the records cannot be read.
void ListGames();

/// Fills `cboList`(1), Select History Set, with the sets of 10 to 1000 games, and selects that of `historySetSize`.
void LoadHistorySetList();

/// Fills `cboList`(2), Select Hot Table, for a game of numbers or of cards, and selects the first table.
void LoadComboHot();

}  // namespace ballhaven
