#include "start/Start.h"

#include "calendar/Calendar.h"
#include "forms/MainForm.h"
#include "games/GameDialog.h"
#include "platform/Application.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "platform/files/Paths.h"
#include "screen/MainWindow.h"
#include "state/AppState.h"
#include "state/DateText.h"

#include <string>

namespace ballhaven {

namespace {

// While this instance looks for the earlier one by its title it bears another one, so that it cannot find itself.
constexpr const char* noTitle = "!@#$%^&";

void BringEarlierInstanceForward() {
    const std::string title = platform::ApplicationTitle();
    platform::SetApplicationTitle(noTitle);
    platform::services.activateApplication(title);
}

}  // namespace

void StartProgram() {
    const platform::WaitPointer waiting;
    if (platform::services.earlierInstanceRuns()) {
        BringEarlierInstanceForward();
        platform::EndProcess();
        return;
    }
    appState.windowsDirectory = platform::WithSeparator(platform::services.systemDirectory());
    appState.shortDateFormat = ProbeShortDate();
    WireMainWindow();
    WireGameDialog();
    WireCalendar();
    frmMainForm.window.Show();
    frmMainForm.window.RepaintNow();
}

}  // namespace ballhaven
