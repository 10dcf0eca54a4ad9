#include "platform/qt/system/QtApplication.h"

#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/qt/system/Appearance.h"
#include "platform/qt/system/ProgramInstance.h"
#include "platform/qt/system/QtServices.h"
#include "platform/qt/widgets/Conversions.h"
#include "platform/qt/windows/QtToolkit.h"

#include <QApplication>
#include <QIcon>

// The linker takes the pictures out of their library only when they are asked for, which has to be done outside every
// namespace.
static void TakePictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace ballhaven::platform {

struct QtApplication::Parts {
    Parts(int& argc, char** argv) : application(argc, argv) {}

    QApplication application;
    QtToolkit qtToolkit;
    ProgramInstance instance;
};

QtApplication::QtApplication(int& argc, char** argv) : parts(std::make_unique<Parts>(argc, argv)) {
    TakePictures();
    QApplication::setApplicationName(ToQString(ApplicationTitle()));
    QApplication::setDesktopFileName(QStringLiteral("ballhaven"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/application.svg")));
    InstallAppearance(parts->application);
    InstallQtServices(parts->qtToolkit, parts->instance);
    toolkit = &parts->qtToolkit;
}

QtApplication::~QtApplication() {
    toolkit = nullptr;
    services = Services();
}

int QtApplication::Run() {
    return QApplication::exec();
}

}  // namespace ballhaven::platform
