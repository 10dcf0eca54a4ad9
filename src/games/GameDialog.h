#pragma once

namespace ballhaven {

/// Hangs the handlers onto the game dialog. Its load reads the record of `gameDialogSlot` and fills the controls.
void WireGameDialog();

}  // namespace ballhaven
