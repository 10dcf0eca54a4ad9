#include "platform/qt/system/EndWatch.h"

#include "platform/CloseDown.h"
#include "platform/Services.h"

#include <QApplication>
#include <QSessionManager>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

class EndWatchTest : public testing::Test {
  protected:
    void SetUp() override {
        services.endProcess = [this](int exitCode) { steps.push_back("end " + std::to_string(exitCode)); };
        closeDownNotices.save = [this] { steps.emplace_back("save"); };
        closeDownNotices.close = [this] { steps.emplace_back("close"); };
    }

    void TearDown() override {
        services = before;
        closeDownNotices = {};
        for (const int each : {SIGTERM, SIGINT, SIGHUP}) {
            std::signal(each, SIG_DFL);
        }
    }

    Services before = services;
    std::vector<std::string> steps;
    EndWatch watch{*qApp};
};

using Steps = std::vector<std::string>;

TEST_F(EndWatchTest, EachSignalForTheEndClosesTheProgramInOrderOnce) {
    raise(SIGTERM);
    raise(SIGTERM);
    EXPECT_TRUE(steps.empty()) << "nothing is done inside the signal";
    EXPECT_TRUE(QTest::qWaitFor([this] { return !steps.empty(); }));
    QTest::qWait(50);
    EXPECT_EQ(steps, (Steps{"close", "end 0"}));
}

TEST_F(EndWatchTest, TheEndOfASessionClosesTheProgramInOrderWhateverWindowIsOpen) {
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(steps, (Steps{"close", "end 0"}));
    EXPECT_TRUE(modal.isVisible());
}

TEST_F(EndWatchTest, TheAnnouncementOfTheEndOfASessionSavesAndNoMore) {
    alignas(QSessionManager) std::byte unused[sizeof(QSessionManager)];  // only the toolkit can make one
    Q_EMIT qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(unused));
    EXPECT_EQ(steps, (Steps{"save"}));
}

TEST_F(EndWatchTest, OtherEventsGoTheirWay) {
    QEvent other(QEvent::User);
    EXPECT_FALSE(watch.eventFilter(qApp, &other));
    EXPECT_TRUE(steps.empty());
}

}  // namespace
}  // namespace ballhaven::platform
