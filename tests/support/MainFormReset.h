#pragma once

namespace ballhaven::support {

/// Puts `appState` and the main window back to their values at the start of the process, the pattern of dates being
/// "m/d/y", and lays the window out. A window that is on screen is torn down first.
void ResetMainForm();

}  // namespace ballhaven::support
