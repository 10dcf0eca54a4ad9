#include "history/HistoryEditing.h"

#include "history/DrawDates.h"
#include "history/HistoryEdits.h"
#include "screen/MainForm.h"

namespace ballhaven {

namespace {

MainForm& form = frmMainForm;

/// A pick that is still being typed is taken before its draw goes; one that is refused keeps the cursor.
void DeleteCurrentDraw() {
    if (form.grdHist.EndEdit()) {
        DeleteDraw();
    }
}

}  // namespace

void WireHistoryEditing() {
    form.mnuEditArray[5].click = DeleteCurrentDraw;
    form.tmrMessage.tick = BringInChosenDraw;
}

}  // namespace ballhaven
