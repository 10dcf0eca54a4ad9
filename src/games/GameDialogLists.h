#pragma once

namespace ballhaven {

/// Fills all controls of the game dialog from `gameRecord`, and puts what was corrected for it back there. Leaves the
/// dialog's `filling` flag set.
void FillGameDialog();

/// Puts the defaults of the selected kind of game into `gameRecord` and fills the dialog anew; the typed name stays.
void ChangeGameType();

/// Offers for the other count only what the changed one leaves of ten picks, and refreshes the highest numbers.
void ChangeMainCount();
void ChangeBonusCount();

/// Rebuilds the lists of the highest main and bonus number by the counts, the lowest numbers and the duplicates.
void RefreshHighestLists();

/// Takes what the dialog shows, with a name, into `gameRecord` and the game variables of `appState`. `orderMatters` is
/// false until the next load of the record.
void TakeGameRules();

}  // namespace ballhaven
