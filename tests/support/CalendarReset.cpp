#include "support/CalendarReset.h"

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

}  // namespace ballhaven::support
