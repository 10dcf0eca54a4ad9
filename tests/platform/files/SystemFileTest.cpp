#include "platform/files/SystemFile.h"

#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

class SystemFileTest : public ::testing::Test {
  protected:
    support::TemporaryDirectory directory;
};

TEST_F(SystemFileTest, AnErrorsNumberComesWithTheException) {
    try {
        Fail(ENOSPC);
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_space_on_device);
        return;
    }
    FAIL() << "nothing was thrown";
}

TEST_F(SystemFileTest, AnInterruptedCallIsTakenAgainAndItsResultComesBack) {
    int calls = 0;
    EXPECT_EQ(Checked([&] { return ++calls < 3 ? -EINTR : 7; }), 7);
    EXPECT_EQ(calls, 3);
}

TEST_F(SystemFileTest, OpeningForReadingOrUpdateMakesNoFile) {
    for (const FileAccess access : {FileAccess::Read, FileAccess::Update}) {
        EXPECT_THROW(OpenFile(directory / "DATA", access), std::system_error);
    }
    EXPECT_TRUE(directory.Files().empty());
}

TEST_F(SystemFileTest, AnOpenFileIsClosedOnceHoweverItEnds) {
    support::WatchedFiles watched;
    {
        OpenFile closed(directory / "A", FileAccess::CreateNew);
        closed.Close();
        OpenFile dropped(directory / "B", FileAccess::CreateNew);
        dropped.Drop();
        const OpenFile left(directory / "C", FileAccess::CreateNew);
    }
    EXPECT_EQ(watched.Count("close"), 3U);
}

TEST_F(SystemFileTest, ATailGoesBehindWhatHasBeenWritten) {
    directory.Write("DATA", "0123456789tail");
    OpenFile copy(directory / "COPY", FileAccess::CreateNew);
    copy.Write("head");
    CopyTail(OpenFile(directory / "DATA", FileAccess::Read), 10, 14, copy, 4);
    copy.Close();
    EXPECT_EQ(directory.Read("COPY"), "headtail");
}

}  // namespace
}  // namespace ballhaven::platform
