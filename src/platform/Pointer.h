#pragma once

namespace ballhaven::platform {

/// Shows the hourglass over the whole screen. Calls do not nest.
void ShowHourglass();

/// Puts the ordinary pointer back.
void ShowArrow();

}  // namespace ballhaven::platform
