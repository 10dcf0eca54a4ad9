#pragma once

namespace ballhaven {

/// Hangs the handlers onto the Hot table, which is only looked at.
void WireHotGrid();

}  // namespace ballhaven
