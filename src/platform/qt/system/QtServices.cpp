#include "platform/qt/system/QtServices.h"

#include "platform/Services.h"
#include "platform/qt/printing/DefaultPrinter.h"
#include "platform/qt/system/ProgramInstance.h"
#include "platform/qt/system/SystemSettings.h"
#include "platform/qt/windows/MessageDialog.h"
#include "platform/qt/windows/QtToolkit.h"

#include <QApplication>
#include <QWidget>

#include <cstdlib>

namespace ballhaven::platform {

namespace {

/// The window over which a message box stands: a modal one, else the one that was active last.
QWidget* WindowInCharge(const QtToolkit& qtToolkit) {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : qtToolkit.FrontWindow();
}

void RaiseWindow(QWidget& window) {
    window.setWindowState((window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    window.show();
    window.raise();
    window.activateWindow();
}

// A desktop that guards its focus lets a window come to the front by the token of the process that was just started;
// the toolkit looks for it in the environment.
void ComeToFront(const QtToolkit& qtToolkit, const std::string& token) {
    constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";
    if (!token.empty()) {
        qputenv(tokenVariable, QByteArray::fromStdString(token));
    }
    QWidget* const front = qtToolkit.FrontWindow();
    QWidget* const inCharge = WindowInCharge(qtToolkit);
    if (front != nullptr) {
        RaiseWindow(*front);
    }
    if (inCharge != nullptr && inCharge != front) {
        RaiseWindow(*inCharge);
    }
    qunsetenv(tokenVariable);
}

}  // namespace

void InstallQtServices(QtToolkit& qtToolkit, ProgramInstance& instance) {
    instance.comeToFront = [&qtToolkit](const std::string& token) { ComeToFront(qtToolkit, token); };
    services.showMessageBox = [&qtToolkit](const MessageBoxRequest& request) {
        return ShowMessageDialog(request, WindowInCharge(qtToolkit));
    };
    services.endProcess = [&instance](int exitCode) {
        instance.Leave();
        std::_Exit(exitCode);
    };
    services.beep = [] { QApplication::beep(); };
    services.openPrinter = OpenDefaultPrinter;
    services.executableDirectory = ExecutableDirectory;
    services.systemDirectory = SystemDirectory;
    services.shortDatePattern = ShortDatePattern;
    services.today = CurrentDate;
    services.firstDayOfWeek = FirstDayOfWeek;
    services.monthName = MonthName;
    services.shortDayName = ShortDayName;
    services.earlierInstanceRuns = [&instance] { return !instance.BecomeFirst(ExecutableDirectory()); };
    services.activateApplication = [&instance](const std::string& title) { return instance.ActivateFirst(title); };
}

}  // namespace ballhaven::platform
