#pragma once

namespace ballhaven {

/// The highest number that a pool can have: 99, or, where numbers can repeat in a drawing, what leaves each of `picks`
/// pick positions a run of cells of its own, `low` being the lowest number. Without picks it is 99.
[[nodiscard]] int HighestNumberLimit(bool duplicates, int picks, int low);

/// Fills all controls of the game dialog from `gameRecord`, and writes back into it what it corrects. Leaves the
/// dialog's `filling` flag set.
void FillGameDialog();

/// Puts the defaults of the selected kind of game into `gameRecord` and fills the dialog anew; the typed name stays.
void ChangeGameType();

/// Offers for the other count only what the changed one leaves of ten picks, and refreshes the highest numbers.
void ChangeMainCount();
void ChangeBonusCount();

/// Rebuilds the lists of the highest main and bonus number by the counts, the lowest numbers and the duplicates.
void RefreshHighestLists();

/// Takes what the dialog shows, with a name, into `gameRecord` and the game variables of `appState`.
void TakeGameRules();

}  // namespace ballhaven
