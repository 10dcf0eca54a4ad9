#include "platform/process/Signals.h"

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace ballhaven::platform {
namespace {

TEST(LettingWritesFail, BeyondTheLimitOnAFilesLengthAWriteSaysSo) {
    const support::TemporaryDirectory directory;
    const auto write = [&] {
        LetWritesFail();
        support::LimitFileLength(2);
        const int file = open((directory / "file").c_str(), O_WRONLY | O_CREAT, 0600);
        const auto first = ::write(file, "abc", 3);
        const auto second = ::write(file, "c", 1);
        return std::to_string(first) + ", " + std::to_string(second) + ": " + std::strerror(errno);
    };

    EXPECT_EQ(support::RunInChild(write).words, "2, -1: File too large");
}

TEST(LettingWritesFail, IntoAPipeThatNobodyReadsAWriteSaysSo) {
    const auto write = [] {
        LetWritesFail();
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        close(ends[0]);
        const auto count = ::write(ends[1], "a", 1);
        return std::to_string(count) + ": " + std::strerror(errno);
    };

    EXPECT_EQ(support::RunInChild(write).words, "-1: Broken pipe");
}

bool IsReadable(int handle) {
    pollfd waiting{handle, POLLIN, 0};
    return poll(&waiting, 1, 0) == 1;
}

class EndSignals : public ::testing::TestWithParam<int> {};

TEST_P(EndSignals, AreToldThroughTheHandleAndEndNothing) {
    const auto raiseIt = [] {
        std::signal(GetParam(), SIG_DFL);
        const int handle = CatchEndSignals();
        const bool before = IsReadable(handle);
        raise(GetParam());
        return std::string(before ? "before" : "not before") + ", " + (IsReadable(handle) ? "after" : "not after");
    };

    EXPECT_EQ(support::RunInChild(raiseIt).words, "not before, after");
}

TEST_P(EndSignals, MayComeAnyNumberOfTimes) {
    const auto raiseThem = [] {
        std::signal(GetParam(), SIG_DFL);
        const int handle = CatchEndSignals();
        for (int i = 0; i < 100'000; ++i) {
            raise(GetParam());
        }
        return std::string(IsReadable(handle) ? "alive" : "untold");
    };

    EXPECT_EQ(support::RunInChild(raiseThem).words, "alive");
}

INSTANTIATE_TEST_SUITE_P(Signals, EndSignals, ::testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(EndSignalsFromTheTerminal, LeaveAProcessAloneThatWasStartedToOutliveIt) {
    const auto hangUp = [] {
        std::signal(SIGHUP, SIG_IGN);
        const int handle = CatchEndSignals();
        raise(SIGHUP);
        return std::string(IsReadable(handle) ? "told" : "left alone");
    };

    EXPECT_EQ(support::RunInChild(hangUp).words, "left alone");
}

TEST(EndSignalsAmongCalls, LeaveTheErrorOfTheCallThatTheyInterrupted) {
    const auto interrupt = [] {
        EXPECT_GE(CatchEndSignals(), 0);
        errno = ENOTTY;
        for (int i = 0; i < 100'000; ++i) {  // until the pipe is full, which is an error of its own
            raise(SIGTERM);
        }
        return std::string(errno == ENOTTY ? "left" : "lost");
    };

    EXPECT_EQ(support::RunInChild(interrupt).words, "left");
}

}  // namespace
}  // namespace ballhaven::platform
