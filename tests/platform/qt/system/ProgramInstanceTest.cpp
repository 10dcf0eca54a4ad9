#include "platform/qt/system/ProgramInstance.h"

#include "support/TemporaryDirectory.h"

#include <QByteArray>
#include <QTest>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>

namespace ballhaven::platform {
namespace {

using support::TemporaryDirectory;

class ProgramInstanceTest : public testing::Test {
  protected:
    void SetUp() override {
        first.comeToFront = [this](const std::string& token) { tokens.push_back(token); };
        ASSERT_TRUE(first.BecomeFirst(folder.Path()));
    }

    void TearDown() override {
        qunsetenv("XDG_ACTIVATION_TOKEN");
        qunsetenv("DESKTOP_STARTUP_ID");
    }

    /// Starts a second instance that asks for an application of a title, and lets the first one serve it.
    void AskFor(const std::string& title) {
        std::atomic<bool> done = false;
        std::thread second([&] {
            ProgramInstance instance;
            EXPECT_FALSE(instance.BecomeFirst(folder.Path()));
            instance.ActivateFirst(title);
            done = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done.load(); }));
        second.join();
    }

    TemporaryDirectory folder;
    ProgramInstance first;
    std::vector<std::string> tokens;
};

TEST_F(ProgramInstanceTest, TheFirstOneStaysTheFirst) {
    EXPECT_TRUE(first.BecomeFirst(folder.Path()));
}

TEST_F(ProgramInstanceTest, AnInstanceOnAnotherFolderIsAFirstOneToo) {
    const TemporaryDirectory other;
    ProgramInstance instance;

    EXPECT_TRUE(instance.BecomeFirst(other.Path()));
}

TEST_F(ProgramInstanceTest, TheSecondOneHandsItsTokenToTheFirst) {
    qputenv("DESKTOP_STARTUP_ID", "ballhaven_TIME77");
    AskFor("Ballhaven");

    EXPECT_EQ(tokens, std::vector<std::string>{"ballhaven_TIME77"});
}

TEST_F(ProgramInstanceTest, TheTokenOfTheNewerKindComesFirst) {
    qputenv("DESKTOP_STARTUP_ID", "old");
    qputenv("XDG_ACTIVATION_TOKEN", "new");
    AskFor("Ballhaven");

    EXPECT_EQ(tokens, std::vector<std::string>{"new"});
}

TEST_F(ProgramInstanceTest, WithoutATokenTheFirstOneIsAskedAllTheSame) {
    AskFor("Ballhaven");

    EXPECT_EQ(tokens, std::vector<std::string>{""});
}

TEST_F(ProgramInstanceTest, AnApplicationOfAnotherTitleStaysWhereItIs) {
    AskFor("Another");

    EXPECT_TRUE(tokens.empty());
}

TEST_F(ProgramInstanceTest, NothingIsLeftInTheFolder) {
    AskFor("Ballhaven");

    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST_F(ProgramInstanceTest, TheFirstOneAsksNobody) {
    first.ActivateFirst("Ballhaven");

    EXPECT_TRUE(tokens.empty());
}

}  // namespace
}  // namespace ballhaven::platform
