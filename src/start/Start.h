#pragma once

namespace ballhaven {

/// Starts the program: refuses to run twice on one program folder, learns the system's folder and date pattern, and
/// shows the main window, whose first activation loads the game shown last. Returns with the window on screen; where an
/// earlier instance runs, that one comes to the front and this process ends without having touched a file; where it
/// does not answer, or the folder cannot be locked, the user is told before the end.
void StartProgram();

}  // namespace ballhaven
