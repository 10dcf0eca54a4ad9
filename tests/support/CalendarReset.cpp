#include "support/CalendarReset.h"

#include "calendar/MonthLayout.h"
#include "forms/CalendarForm.h"

#include <memory>

namespace ballhaven::support {

void ResetCalendar() {
    ahcCalendar.acceptDate = nullptr;
    ahcCalendar.window.Unload();
    std::destroy_at(&ahcCalendar);
    std::construct_at(&ahcCalendar);
    LayOutCalendar();
}

void ShowMonthOf(std::chrono::year_month_day date) {
    ahcCalendar.SetToday(date);
    MeasureCalendar();
    FillWeekdayLetters();
    LayOutMonth();
}

}  // namespace ballhaven::support
