#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/qt/system/QtApplication.h"

#include <QByteArray>
#include <QtGlobal>
#include <gtest/gtest.h>

namespace {

namespace platform = ballhaven::platform;

/// The surroundings of a test that sets up none of its own: whatever would reach out of the test fails it instead.
void RefuseTheSurroundings() {
    platform::services.showMessageBox = [](const platform::MessageBoxRequest& request) {
        ADD_FAILURE() << "A box without a script: " << request.title << ": " << request.text;
        return request.buttons == platform::BoxButtons::Ok ? platform::BoxAnswer::Ok : platform::BoxAnswer::No;
    };
    platform::services.endProcess = [](int exitCode) {
        ADD_FAILURE() << "The process would have ended with exit code " << exitCode;
    };
    platform::services.executableDirectory = [] { return std::string("/nowhere"); };
    platform::services.shortDatePattern = [](const std::string&) { return std::string("M/d/yyyy"); };
    platform::services.earlierInstanceRuns = [] { return false; };
    platform::services.activateApplication = [](const std::string&) { return true; };
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
    }
    testing::InitGoogleTest(&argc, argv);
    const platform::QtApplication application(argc, argv);
    RefuseTheSurroundings();
    return RUN_ALL_TESTS();
}
