#pragma once

namespace ballhaven {

/// Tells the guard what is to be saved before a failure ends the program (the draws and the plays of the current game,
/// where they are dirty), and in which words the failure is told: what happened, in which game, and the way out.
void PrepareForFailures();

}  // namespace ballhaven
