#pragma once

namespace ballhaven {

/// Prints the plays of the game at hand, a line each, as one job, after `sortPlaysForReport`. The user is told where
/// the printer is not ready. Throws the printer's other failures.
void playSlipReport();

}  // namespace ballhaven
