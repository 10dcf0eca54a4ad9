#include "start/Start.h"

#include "calendar/Calendar.h"
#include "forms/MainForm.h"
#include "games/GameDialog.h"
#include "help/HelpBox.h"
#include "history/UnsavedWork.h"
#include "platform/Application.h"
#include "platform/Boxes.h"
#include "platform/CloseDown.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FolderChange.h"
#include "platform/files/Paths.h"
#include "plays/PlaySlipsWindow.h"
#include "printing/PrintDialog.h"
#include "screen/MainWindow.h"
#include "start/LastWords.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "wheels/ShuffleWindow.h"

#include <stdexcept>
#include <string>
#include <system_error>

namespace ballhaven {

namespace {

// While this instance looks for the earlier one by its title it bears another one, so that it cannot find itself.
constexpr const char* noTitle = "!@#$%^&";

/// Whether an earlier instance has come to the front.
bool BringEarlierInstanceForward() {
    const std::string title = platform::ApplicationTitle();
    platform::SetApplicationTitle(noTitle);
    const bool answered = platform::services.activateApplication(title);
    if (!answered) {
        platform::SetApplicationTitle(title);
    }
    return answered;
}

void TellOfTheFolder(const std::string& whatIsWrong, const std::string& wayOut) {
    const std::string folder = platform::TextOfSystem(platform::services.executableDirectory());
    platform::Tell(whatIsWrong + "\n" + folder + "\n\n" + wayOut, platform::BoxIcon::Critical);
}

/// Whether no change of several files that was decided in the folder waits to be finished, now at the latest. The
/// companion on the command line begins such changes, and may have been stopped in the middle of one.
bool IsWhole() {
    try {
        platform::FinishFolderChange(platform::services.executableDirectory());
        return true;
    } catch (const std::system_error& error) {
        TellOfTheFolder("Ballhaven cannot finish a change that was begun in the folder",
                        "The system says: " + platform::TextOfSystem(error.code().message()) +
                            ". Make sure that you may write there, and start Ballhaven again.");
        return false;
    } catch (const std::runtime_error&) {
        return true;  // a folder that the system does not tell is passed over, as the main window does
    }
}

/// Whether the folder of the program is this process's own. Where it is not, an earlier instance has come to the front,
/// or the user has been told why the program does not start. An instance that was about to end leaves its folder to the
/// next one.
bool HasTheFolder() {
    try {
        if (!platform::services.earlierInstanceRuns()) {
            return true;
        }
        if (BringEarlierInstanceForward()) {
            return false;
        }
        if (!platform::services.earlierInstanceRuns()) {
            return true;
        }
        TellOfTheFolder("Ballhaven is in use already, but does not answer, in the folder",
                        "Either another user works with it, who has to close it first, or it hangs: then end its "
                        "process. After that, start Ballhaven again.");
    } catch (const std::system_error& error) {
        TellOfTheFolder("Ballhaven cannot make sure that it is the only one to work in the folder",
                        "The system says: " + platform::TextOfSystem(error.code().message()) +
                            ". Two at a time would overwrite each other's draws. Copy the folder to a disk of this "
                            "computer where you may read and write, and start Ballhaven there.");
    }
    return false;
}

}  // namespace

void StartProgram() {
    const platform::WaitPointer waiting;
    if (!HasTheFolder() || !IsWhole()) {
        platform::EndProcess();
        return;
    }
    appState.windowsDirectory = platform::WithSeparator(platform::services.systemDirectory());
    appState.shortDateFormat = ProbeShortDate();
    platform::closeDownNotices.save = SaveWhatIsDirty;
    platform::closeDownNotices.close = [] { frmMainForm.window.Unload(); };
    PrepareForFailures();
    WireMainWindow();
    WireGameDialog();
    WireCalendar();
    WirePlaySlipsWindow();
    WireShuffleWindow();
    WirePrintDialog();
    WireHelpBox();
    frmMainForm.window.Show();
    frmMainForm.window.RepaintNow();
}

}  // namespace ballhaven
