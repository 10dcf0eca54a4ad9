#pragma once

namespace ballhaven {

/// Has the open boards of plays read again.
void RefreshPlayGrids();

}  // namespace ballhaven
