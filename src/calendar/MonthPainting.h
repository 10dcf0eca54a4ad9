#pragma once

#include "platform/controls/DrawingSurface.h"

namespace ballhaven {

/// Draws the calendar: the arrow buttons, the title, the letters of the week and the cells of the month on show.
void PaintCalendar(platform::Canvas& canvas);

}  // namespace ballhaven
