#include "platform/process/InstanceSocket.h"

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace ballhaven::platform {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int patience = 400;  // milliseconds
constexpr std::size_t longestRequest = 4096;

/// Connects to a socket as any program may.
int ConnectTo(const std::string& path) {
    const int connection = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, path.size());
    EXPECT_EQ(connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return connection;
}

void WaitUntilReadable(int handle) {
    pollfd waiting{handle, POLLIN, 0};
    EXPECT_EQ(poll(&waiting, 1, 5000), 1);
}

class InstanceSocketTest : public ::testing::Test {
  protected:
    /// A first instance that serves one visitor, who is asked by `visit`, and answers if it is to.
    InstanceRequest Serve(const std::function<void()>& visit, bool answers = true) const {
        const InstanceListener listener(path);
        std::thread second(visit);
        WaitUntilReadable(listener.Number());
        std::optional<InstanceVisitor> visitor = listener.LetIn();
        InstanceRequest request;
        if (visitor) {
            WaitUntilReadable(visitor->Number());
            EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::HasAsked);
            request = visitor->Request();
            if (answers) {
                visitor->Answer();
            }
        }
        second.join();
        return request;
    }

    support::TemporaryDirectory directory;
    std::string path = directory / "socket";
};

TEST_F(InstanceSocketTest, ARequestReachesTheFirstInstanceAndIsAnswered) {
    bool answered = false;
    const InstanceRequest request = Serve([&] {
        answered = AskFirstInstance(path, {"Ballhaven", "token-7"}, patience);
    });

    EXPECT_EQ(request, (InstanceRequest{"Ballhaven", "token-7"}));
    EXPECT_TRUE(answered);
}

TEST_F(InstanceSocketTest, ATokenThatIsTooLongIsLeftOut) {
    bool answered = false;
    const InstanceRequest request = Serve([&] {
        answered = AskFirstInstance(path, {"Ballhaven", std::string(longestRequest, 't')}, patience);
    });

    EXPECT_EQ(request, (InstanceRequest{"Ballhaven", ""}));
    EXPECT_TRUE(answered);
}

TEST_F(InstanceSocketTest, AFirstInstanceThatDoesNotAnswerIsWaitedForNoLongerThanThePatience) {
    bool answered = true;
    const auto begin = Clock::now();
    Serve([&] { answered = AskFirstInstance(path, {"Ballhaven", ""}, patience); }, false);

    EXPECT_FALSE(answered);
    EXPECT_GE(Clock::now() - begin, std::chrono::milliseconds(patience));
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(3));
}

TEST_F(InstanceSocketTest, WhereNobodyListensTheAnswerIsNo) {
    const auto begin = Clock::now();
    EXPECT_FALSE(AskFirstInstance(path, {"Ballhaven", ""}, patience));
    EXPECT_FALSE(AskFirstInstance("", {"Ballhaven", ""}, patience));
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(3));
}

TEST_F(InstanceSocketTest, AnInstanceThatListensOnlyLaterIsReachedAllTheSame) {
    bool answered = false;
    std::thread second([&] { answered = AskFirstInstance(path, {"Ballhaven", ""}, 5000); });
    std::this_thread::sleep_for(std::chrono::milliseconds(120));
    Serve([&] { second.join(); });

    EXPECT_TRUE(answered);
}

TEST_F(InstanceSocketTest, ASocketThatAKilledProcessLeftIsReplaced) {
    directory.Write("socket", "left over");
    bool answered = false;
    Serve([&] { answered = AskFirstInstance(path, {"Ballhaven", ""}, patience); });

    EXPECT_TRUE(answered);
}

TEST_F(InstanceSocketTest, NoSocketStaysBehind) {
    { const InstanceListener listener(path); }
    EXPECT_FALSE(directory.Has("socket"));
}

TEST_F(InstanceSocketTest, AVisitorThatHasGoneAndOneThatHasSaidHalfAreToldApart) {
    const InstanceListener listener(path);
    const int connection = ConnectTo(path);
    std::optional<InstanceVisitor> visitor = listener.LetIn();
    ASSERT_TRUE(visitor);
    EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::Speaking);
    EXPECT_EQ(send(connection, "Ballhaven\ntok", 13, 0), 13);
    EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::Speaking);
    EXPECT_EQ(send(connection, "en\n", 3, 0), 3);
    EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::HasAsked);
    EXPECT_EQ(visitor->Request(), (InstanceRequest{"Ballhaven", "token"}));
    close(connection);
    EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::Gone);
    visitor->Answer();  // into the void
}

TEST_F(InstanceSocketTest, AVisitorThatSaysTooMuchCountsAsGone) {
    const InstanceListener listener(path);
    const int connection = ConnectTo(path);
    std::optional<InstanceVisitor> visitor = listener.LetIn();
    ASSERT_TRUE(visitor);
    const std::string words(longestRequest, 'x');
    EXPECT_EQ(send(connection, words.data(), words.size(), 0), static_cast<ssize_t>(longestRequest));
    EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::Speaking);
    EXPECT_EQ(send(connection, "x", 1, 0), 1);
    EXPECT_EQ(visitor->Listen(), InstanceVisitor::State::Gone);
    close(connection);
}

TEST_F(InstanceSocketTest, WhereNobodyWaitsNobodyIsLetIn) {
    const InstanceListener listener(path);
    EXPECT_FALSE(listener.LetIn());
}

// ---- Other users. Only the system's administrator can act as two of them. ----

class OtherUsers : public InstanceSocketTest {
  protected:
    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only the administrator can be two users";
        }
        ASSERT_EQ(chmod(directory.Path().c_str(), 0777), 0);
    }
};

TEST_F(OtherUsers, AreNotLetIn) {
    const InstanceListener listener(path);
    ASSERT_EQ(chmod(path.c_str(), 0777), 0);
    std::thread stranger([&] {
        const support::ChildEnd end = support::RunInChild([&] {
            support::BecomeOrdinaryUser();
            const int connection = ConnectTo(path);
            char letter = 0;
            return std::to_string(recv(connection, &letter, 1, 0));
        });
        EXPECT_EQ(end.words, "0");
    });
    WaitUntilReadable(listener.Number());
    EXPECT_FALSE(listener.LetIn());
    stranger.join();
}

TEST_F(OtherUsers, GetNoTokenByListeningUnderTheName) {
    bool answered = true;
    std::thread squatter([&] {
        const support::ChildEnd end = support::RunInChild([&] {
            support::BecomeOrdinaryUser();
            const InstanceListener listener(path);
            if (chmod(path.c_str(), 0777) != 0) {
                return std::string("no socket");
            }
            WaitUntilReadable(listener.Number());
            const int connection = accept(listener.Number(), nullptr, nullptr);
            std::string words(100, '.');
            words.resize(static_cast<std::size_t>(std::max<ssize_t>(recv(connection, words.data(), 100, 0), 0)));
            return "heard: " + words;
        });
        EXPECT_EQ(end.words, "heard: ");
    });
    while (!directory.Has("socket") || (fs::status(path).permissions() & fs::perms::others_write) == fs::perms::none) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    const auto begin = Clock::now();
    answered = AskFirstInstance(path, {"Ballhaven", "token-7"}, 5000);
    EXPECT_FALSE(answered);
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(3)) << "it is not asked again and again";
    squatter.join();
}

// ---- The socket's place ----

class SocketPlace : public ::testing::Test {
  protected:
    void SetUp() override { before = std::getenv("XDG_RUNTIME_DIR") == nullptr ? "" : std::getenv("XDG_RUNTIME_DIR"); }
    void TearDown() override { setenv("XDG_RUNTIME_DIR", before.c_str(), 1); }

    /// The folder of the user's own that stands in for one of the session.
    static std::string OwnFolder(uid_t user) { return "/tmp/ballhaven-" + std::to_string(user); }

    support::TemporaryDirectory runtime;

  private:
    std::string before;
};

TEST_F(SocketPlace, IsTheRuntimeFolderOfTheSession) {
    setenv("XDG_RUNTIME_DIR", runtime.Path().c_str(), 1);
    EXPECT_EQ(PrivateSocketPath("name"), runtime.Path() + "/name");
}

TEST_F(SocketPlace, IsAFolderOfTheUsersOwnWhereOthersReachTheRuntimeFolder) {
    for (const unsigned permissions : {0701U, 0710U, 0755U, 0777U}) {
        ASSERT_EQ(chmod(runtime.Path().c_str(), permissions), 0);
        setenv("XDG_RUNTIME_DIR", runtime.Path().c_str(), 1);
        EXPECT_EQ(PrivateSocketPath("name"), OwnFolder(geteuid()) + "/name") << permissions;
    }
    struct stat found {};
    ASSERT_EQ(lstat(OwnFolder(geteuid()).c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0700U);
    EXPECT_EQ(found.st_uid, geteuid());
}

TEST_F(SocketPlace, IsAFolderOfTheUsersOwnWhereThereIsNoRuntimeFolderOrAnotherUsersOne) {
    const auto placeOfAnOrdinaryUser = [](const char* folder) {
        return support::RunInChild([&] {
                   support::BecomeOrdinaryUser();
                   setenv("XDG_RUNTIME_DIR", folder, 1);
                   const std::string place = PrivateSocketPath("name");
                   return place == OwnFolder(geteuid()) + "/name" ? "his own" : place;
               })
            .words;
    };
    for (const char* folder : {"/root", "/no/such/folder", "", "relative"}) {
        EXPECT_EQ(placeOfAnOrdinaryUser(folder), "his own") << folder;
    }
    EXPECT_EQ(support::RunInChild([] {
                  unsetenv("XDG_RUNTIME_DIR");
                  return PrivateSocketPath("name");
              }).words,
              OwnFolder(geteuid()) + "/name");
}

TEST_F(SocketPlace, IsAFolderOfTheUsersOwnWhereThePathWouldBeTooLongForASocket) {
    const std::string deep = runtime / std::string(100, 'd');
    ASSERT_EQ(mkdir(deep.c_str(), 0700), 0);
    setenv("XDG_RUNTIME_DIR", deep.c_str(), 1);
    EXPECT_EQ(PrivateSocketPath("name"), OwnFolder(geteuid()) + "/name");
}

TEST_F(SocketPlace, IsNoLinkThatSomebodyHasLaid) {
    const fs::path link = runtime / "link";
    const support::TemporaryDirectory folder;
    fs::create_directory_symlink(folder.Path(), link);
    setenv("XDG_RUNTIME_DIR", link.c_str(), 1);
    EXPECT_EQ(PrivateSocketPath("name"), OwnFolder(geteuid()) + "/name");
}

}  // namespace
}  // namespace ballhaven::platform
