#pragma once

namespace ballhaven::platform {

/// Lets a write fail with an error where the system would otherwise end the process by a signal: beyond the limit on a
/// file's length, and into a pipe that nobody reads.
void LetWritesFail();

/// Takes the signals by which a terminal, a desktop or a user asks the process to end: SIGTERM and SIGINT, and SIGHUP
/// unless the process was started with that one ignored. Returns a handle that becomes readable when one of them has
/// come, and stays so; -1 where the system gives none, and nothing is taken then.
[[nodiscard]] int CatchEndSignals();

}  // namespace ballhaven::platform
