#include "platform/Guard.h"
#include "platform/qt/system/QtApplication.h"
#include "start/Start.h"

int main(int argc, char** argv) {
    ballhaven::platform::QtApplication application(argc, argv);
    ballhaven::platform::RunGuarded(ballhaven::StartProgram);
    return application.Run();
}
