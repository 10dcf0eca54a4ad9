#pragma once

namespace ballhaven::support {

/// Puts the calendar back to its values at the start of the process, wires nothing, and lays it out.
void ResetCalendar();

}  // namespace ballhaven::support
