#include "platform/qt/system/QtApplication.h"

#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/qt/grid/JoinedTable.h"
#include "platform/qt/system/Appearance.h"
#include "platform/qt/system/EndWatch.h"
#include "platform/qt/system/ProgramInstance.h"
#include "platform/qt/system/QtServices.h"
#include "platform/qt/widgets/BuiltPicture.h"
#include "platform/qt/widgets/Conversions.h"
#include "platform/qt/widgets/SurfaceCells.h"
#include "platform/qt/widgets/ToldOption.h"
#include "platform/qt/windows/QtToolkit.h"
#include "platform/qt/windows/WindowRole.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include <optional>

// The linker takes the pictures out of their library only when they are asked for, which has to be done outside every
// namespace.
static void TakePictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace ballhaven::platform {

namespace {

QIcon ProgramIcon() {
    QIcon icon;
    for (const char* scale : {"1", "2"}) {
        icon.addPixmap(BuiltPicture("application", scale));
    }
    return icon;
}

}  // namespace

struct QtApplication::Parts {
    Parts(int& argc, char** argv) : application(argc, argv) {}

    QApplication application;
    QtToolkit qtToolkit;
    ProgramInstance instance;
    std::optional<EndWatch> endWatch;
};

QtApplication::QtApplication(int& argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);  // or a desktop's font would take the place of the program's
    parts = std::make_unique<Parts>(argc, argv);
    TakePictures();
    QApplication::setApplicationName(ToQString(ApplicationTitle()));
    QApplication::setDesktopFileName(QStringLiteral("ballhaven"));
    InstallAppearance(parts->application);
    InstallJoinedTables();
    InstallWindowRoles();
    InstallSurfaceCells();
    InstallToldOptions();
    InstallQtServices(parts->qtToolkit, parts->instance);
    toolkit = &parts->qtToolkit;
    QTimer::singleShot(0, &parts->application, [] { QApplication::setWindowIcon(ProgramIcon()); });  // the window first
}

QtApplication::~QtApplication() {
    toolkit = nullptr;
    services = Services();
}

void QtApplication::CloseWhenAsked() {
    parts->endWatch.emplace(parts->application);
}

int QtApplication::Run() {
    return QApplication::exec();
}

}  // namespace ballhaven::platform
