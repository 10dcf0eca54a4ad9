#pragma once

namespace ballhaven {

/// Hangs the handlers onto the Historical Log: its cells, typing with the range check, keys, mouse, and what a move of
/// the current cell opens and ends.
void WireLogGrid();

}  // namespace ballhaven
