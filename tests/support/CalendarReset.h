#pragma once

#include <chrono>

namespace ballhaven::support {

/// Puts the calendar back to its values at the start of the process, wires nothing, and lays it out.
void ResetCalendar();

/// Shows a month with a day of it selected, as the calendar does when it opens: texts measured, letters filled.
void ShowMonthOf(std::chrono::year_month_day date);

}  // namespace ballhaven::support
