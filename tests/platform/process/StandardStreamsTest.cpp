#include "platform/process/StandardStreams.h"

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace ballhaven::platform {
namespace {

/// What a file holds that a child makes and puts "draws" into once it has tried to write an error's words.
std::string ContentWithout(const std::vector<int>& streams) {
    const support::TemporaryDirectory directory;
    const auto work = [&] {
        for (const int stream : streams) {
            close(stream);
        }
        FillStandardStreams();
        const int file = open((directory / "file").c_str(), O_WRONLY | O_CREAT, 0600);
        const auto out = ::write(STDOUT_FILENO, "words", 5);
        const auto errors = ::write(STDERR_FILENO, "words", 5);
        const auto draws = ::write(file, "draws", 5);
        return std::to_string(out) + ", " + std::to_string(errors) + ", " + std::to_string(draws);
    };
    const std::string counts = support::RunInChild(work).words;
    return counts + ": " + directory.Read("file");
}

TEST(StandardStreams, ThatAreMissingLeaveTheirNumbersToNoFile) {
    EXPECT_EQ(ContentWithout({STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}), "-1, -1, 5: draws");
    EXPECT_EQ(ContentWithout({STDOUT_FILENO, STDERR_FILENO}), "-1, -1, 5: draws");
}

TEST(StandardStreams, ThatAreThereStay) {
    const auto outputIsStillThePipe = [] {
        int ends[2] = {};
        EXPECT_EQ(pipe(ends), 0);
        dup2(ends[1], STDOUT_FILENO);
        close(STDERR_FILENO);
        FillStandardStreams();
        char words[5] = {};
        const auto written = ::write(STDOUT_FILENO, "words", 5);
        const auto count = ::read(ends[0], words, 5);
        return std::to_string(written) + ", " + std::to_string(count) + ", " + std::string(words, 5);
    };

    EXPECT_EQ(support::RunInChild(outputIsStillThePipe).words, "5, 5, words");
}

}  // namespace
}  // namespace ballhaven::platform
