#include "platform/qt/system/QtApplication.h"
#include "support/FreshStart.h"

#include <QByteArray>
#include <QtGlobal>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
    }
    testing::InitGoogleTest(&argc, argv);
    const ballhaven::platform::QtApplication application(argc, argv);
    ballhaven::support::StartEveryTestAfresh();
    return RUN_ALL_TESTS();
}
