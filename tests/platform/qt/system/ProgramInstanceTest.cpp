#include "platform/qt/system/ProgramInstance.h"

#include "support/TemporaryDirectory.h"

#include <QByteArray>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <memory>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace ballhaven::platform {
namespace {

using support::TemporaryDirectory;

class ProgramInstanceTest : public testing::Test {
  protected:
    void SetUp() override {
        qputenv("XDG_RUNTIME_DIR", runtime.Path().c_str());
        first.comeToFront = [this](const std::string& token) { tokens.push_back(token); };
        ASSERT_TRUE(first.BecomeFirst(folder.Path()));
    }

    void TearDown() override {
        qunsetenv("XDG_ACTIVATION_TOKEN");
        qunsetenv("DESKTOP_STARTUP_ID");
        qunsetenv("XDG_RUNTIME_DIR");
    }

    /// Starts a second instance that asks for an application of a title, and lets the first one serve it.
    void AskFor(const std::string& title) {
        std::atomic<bool> done = false;
        std::thread second([&] {
            ProgramInstance instance;
            EXPECT_FALSE(instance.BecomeFirst(folder.Path()));
            answered = instance.ActivateFirst(title);
            done = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done.load(); }));
        second.join();
    }

    TemporaryDirectory folder;
    ProgramInstance first;
    std::vector<std::string> tokens;
    std::atomic<bool> answered = false;

  private:
    TemporaryDirectory runtime;
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

    EXPECT_TRUE(answered);
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

TEST_F(ProgramInstanceTest, AFolderThatCannotBeLockedIsAnError) {
    ProgramInstance instance;

    EXPECT_THROW((void)instance.BecomeFirst("/no/such/folder"), std::system_error);
}

TEST_F(ProgramInstanceTest, OneThatIsAboutToEndAnswersNobodyAndLeavesNoSocket) {
    first.Leave();
    ProgramInstance second;
    ASSERT_FALSE(second.BecomeFirst(folder.Path()));

    EXPECT_FALSE(second.ActivateFirst("Ballhaven"));
    EXPECT_TRUE(std::filesystem::is_empty(qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString()));
}

TEST_F(ProgramInstanceTest, ASecondOneBecomesTheFirstWhenThatOneHasGone) {
    auto gone = std::make_unique<ProgramInstance>();
    const TemporaryDirectory other;
    ASSERT_TRUE(gone->BecomeFirst(other.Path()));
    ProgramInstance second;
    ASSERT_FALSE(second.BecomeFirst(other.Path()));
    gone.reset();

    EXPECT_TRUE(second.BecomeFirst(other.Path()));
}

/// Open handles of this process.
long OpenHandles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

/// Connects to the only socket of the session so many times from another process, which says nothing and stays.
pid_t ConnectIdly(int connections) {
    const std::string folder = qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString();
    const std::string path = std::filesystem::directory_iterator(folder)->path().string();
    const pid_t child = fork();
    if (child == 0) {
        rlimit limit{};
        getrlimit(RLIMIT_NOFILE, &limit);
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, path.size());
        for (int i = 0; i < connections; ++i) {
            const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
            connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address);
        }
        pause();
        _exit(0);
    }
    return child;
}

TEST_F(ProgramInstanceTest, AThousandIdleVisitorsTakeNoMoreThanOneAndTheNextOneIsServed) {
    const long handlesBefore = OpenHandles();
    const pid_t idlers = ConnectIdly(1000);
    long mostHandles = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        mostHandles = std::max(mostHandles, OpenHandles());
        return mostHandles > handlesBefore;
    }));
    for (int i = 0; i < 20; ++i) {
        QTest::qWait(10);
        mostHandles = std::max(mostHandles, OpenHandles());
    }
    AskFor("Ballhaven");
    kill(idlers, SIGKILL);
    waitpid(idlers, nullptr, 0);

    EXPECT_EQ(mostHandles, handlesBefore + 1);
    EXPECT_TRUE(answered);
    EXPECT_EQ(tokens, std::vector<std::string>{""});
}

}  // namespace
}  // namespace ballhaven::platform
