#include "platform/qt/system/QtServices.h"

#include "platform/Services.h"
#include "platform/qt/system/ProgramInstance.h"
#include "platform/qt/windows/QtToolkit.h"
#include "support/qt/TestWindow.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

/// The real services over the toolkit of the tests, for as long as a test lasts.
class QtServicesTest : public testing::Test {
  protected:
    void SetUp() override { InstallQtServices(*static_cast<QtToolkit*>(toolkit), instance); }
    void TearDown() override { services = before; }

    Services before = services;
    ProgramInstance instance;
};

TEST_F(QtServicesTest, EveryServiceHasItsAnswer) {
    EXPECT_TRUE(services.showMessageBox && services.endProcess && services.executableDirectory &&
                services.systemDirectory && services.shortDatePattern && services.earlierInstanceRuns &&
                services.activateApplication);
    EXPECT_FALSE(services.executableDirectory().empty());
}

TEST_F(QtServicesTest, AMessageBoxStandsOverTheWindowThatWasActiveLast) {
    TestWindow form{};
    form.Show();
    QWidget* parent = nullptr;
    QTimer::singleShot(0, [&] {
        parent = QApplication::activeModalWidget()->parentWidget();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(services.showMessageBox({"Done", BoxButtons::Ok, BoxIcon::None, "Ballhaven"}), BoxAnswer::Ok);

    EXPECT_EQ(parent, form.Widget());
}

TEST_F(QtServicesTest, AnInstanceThatIsAskedToTheFrontRestoresItsWindow) {
    TestWindow form{};
    form.Show();
    form.Widget()->showMinimized();
    instance.comeToFront("");

    EXPECT_FALSE(form.Widget()->isMinimized());
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.Widget()));
}

TEST_F(QtServicesTest, TheTokenGoesToTheDesktopAndIsGoneFromTheEnvironmentAfterwards) {
    TestWindow form{};
    form.Show();
    instance.comeToFront("token-7");

    EXPECT_TRUE(qEnvironmentVariableIsEmpty("XDG_ACTIVATION_TOKEN"));
}

TEST_F(QtServicesTest, AnInstanceWithoutAWindowIsAskedInVain) {
    EXPECT_NO_THROW(instance.comeToFront("token-7"));
}

TEST_F(QtServicesTest, ThePrinterIsOneOnWhichAPageCanBeMeasured) {
    EXPECT_GT(services.openPrinter("Six of 49 Play Slips")->PageWidth(), 7 * 1440);
}

}  // namespace
}  // namespace ballhaven::platform
