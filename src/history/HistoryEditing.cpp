#include "history/HistoryEditing.h"

#include "calendar/CalendarForm.h"
#include "history/DrawDates.h"
#include "history/HistoryEdits.h"
#include "platform/Pointer.h"
#include "screen/MainForm.h"

#include <chrono>

namespace ballhaven {

namespace {

MainForm& form = frmMainForm;

constexpr std::size_t addRecord = 4;
constexpr std::size_t deleteRecord = 5;

/// Opens the calendar on a date, and returns when it has closed.
void ChooseDate(std::chrono::year_month_day offered) {
    ahcCalendar.Terminate();
    ahcCalendar.OutputControl = &form.grdHist;
    ahcCalendar.SetToday(offered);
    ahcCalendar.OutputFormat.clear();
    ahcCalendar.Initialize();
    EndDateChoice();
}

// A pick that is still being typed is taken before a command; one that is refused keeps the cursor.

void AddDraw() {
    if (form.grdHist.EndEdit()) {
        platform::ShowHourglass();
        ChooseDate(BeginNewDraw());
    }
}

void DeleteCurrentDraw() {
    if (form.grdHist.EndEdit()) {
        DeleteDraw();
    }
}

void ChangeDate() {
    form.grdHist.GoToPane(datePane);
    ChooseDate(BeginDateChange());
}

}  // namespace

void WireHistoryEditing() {
    form.mnuEditArray[addRecord].click = AddDraw;
    form.mnuEditArray[deleteRecord].click = DeleteCurrentDraw;
    form.grdHist.dropDown = [](int) { ChangeDate(); };
    form.tmrMessage.tick = BringInChosenDraw;
    ahcCalendar.acceptDate = TakeChosenDate;
}

}  // namespace ballhaven
