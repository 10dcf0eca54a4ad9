#include "history/HistoryEditing.h"

#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "history/DrawDates.h"
#include "history/HistoryEdits.h"
#include "platform/Pointer.h"

#include <chrono>

namespace ballhaven {

namespace {

constexpr std::size_t addRecord = 4;
constexpr std::size_t deleteRecord = 5;

/// Opens the calendar on a date, and returns when it has closed.
void ChooseDate(std::chrono::year_month_day offered) {
    ahcCalendar.Terminate();
    ahcCalendar.OutputControl = &frmMainForm.grdHist;
    ahcCalendar.SetToday(offered);
    ahcCalendar.OutputFormat.clear();
    ahcCalendar.Initialize();
    EndDateChoice();
}

// A pick that is still being typed is taken before a command; one that is refused keeps the cursor.

void AddDraw() {
    if (frmMainForm.grdHist.EndEdit()) {
        const platform::WaitPointer waiting;
        ChooseDate(BeginNewDraw());
    }
}

void DeleteCurrentDraw() {
    if (frmMainForm.grdHist.EndEdit()) {
        DeleteDraw();
    }
}

void ChangeDate() {
    frmMainForm.grdHist.GoToPane(datePane);
    ChooseDate(BeginDateChange());
}

}  // namespace

void WireHistoryEditing() {
    frmMainForm.mnuEditArray[addRecord].click = AddDraw;
    frmMainForm.mnuEditArray[deleteRecord].click = DeleteCurrentDraw;
    frmMainForm.grdHist.dropDown = [](int) { ChangeDate(); };
    frmMainForm.tmrMessage.tick = BringInChosenDraw;
    ahcCalendar.acceptDate = TakeChosenDate;
}

}  // namespace ballhaven
