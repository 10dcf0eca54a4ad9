#include "data/ProgressBar.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ballhaven::data {
namespace {

TEST(ProgressBar, ATerminalShowsItGrowOnOneLineAndGo) {
    std::ostringstream out;
    std::ostringstream notes;
    {
        ProgressBar bar({out, notes, true}, "6 of 49");
        bar.Show(0);
        bar.Show(0.5);
    }
    EXPECT_EQ(notes.str(),
              "\r\033[K6 of 49 [                         ] 0 %"
              "\r\033[K6 of 49 [############             ] 50 %"
              "\r\033[K");
    EXPECT_EQ(out.str(), "");
}

TEST(ProgressBar, AShareThatIsNoPercentMoreDrawsNothing) {
    std::ostringstream out;
    std::ostringstream notes;
    ProgressBar bar({out, notes, true}, "x");
    bar.Show(0.501);
    const std::string once = notes.str();
    bar.Show(0.509);
    EXPECT_EQ(notes.str(), once);
}

TEST(ProgressBar, AllOfItIsAHundredPercent) {
    std::ostringstream out;
    std::ostringstream notes;
    ProgressBar bar({out, notes, true}, "x");
    bar.Show(1);
    EXPECT_EQ(notes.str(), "\r\033[Kx [#########################] 100 %");
}

TEST(ProgressBar, NobodyWatchingNothingIsWritten) {
    std::ostringstream out;
    std::ostringstream notes;
    {
        ProgressBar bar({out, notes, false}, "x");
        bar.Show(0.3);
    }
    EXPECT_EQ(notes.str(), "");
}

}  // namespace
}  // namespace ballhaven::data
