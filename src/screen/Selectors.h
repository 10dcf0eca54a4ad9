#pragma once

namespace ballhaven {

/// Hangs the handlers onto the three selectors and the option buttons of the main window.
void WireSelectors();

/// Asks whether to set the game up, if the selected one is "un-defined". On Yes the game dialog is due for it:
/// `gameDialogMode` 1, `gameDialogSlot` the current game.
void AskToSetUpGame();

}  // namespace ballhaven
