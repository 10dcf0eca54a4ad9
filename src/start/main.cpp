#include "platform/Guard.h"
#include "platform/process/Signals.h"
#include "platform/process/StandardStreams.h"
#include "platform/qt/system/QtApplication.h"
#include "start/Start.h"

int main(int argc, char** argv) {
    ballhaven::platform::FillStandardStreams();
    ballhaven::platform::LetWritesFail();
    ballhaven::platform::QtApplication application(argc, argv);
    application.CloseWhenAsked();
    ballhaven::platform::RunGuarded(ballhaven::StartProgram);
    return application.Run();
}
