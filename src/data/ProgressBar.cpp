#include "data/ProgressBar.h"

#include <cmath>

namespace ballhaven::data {

namespace {

constexpr int wholePercent = 100;
constexpr int percentPerMark = 4;
constexpr const char* clearLine = "\r\033[K";

}  // namespace

ProgressBar::~ProgressBar() {
    if (percentShown >= 0) {
        console.notes << clearLine << std::flush;
    }
}

void ProgressBar::Show(double share) {
    const int percent = static_cast<int>(std::floor(share * wholePercent));
    if (!console.notesAreWatched || percent == percentShown) {
        return;
    }
    percentShown = percent;
    const auto marks = static_cast<std::size_t>(percent / percentPerMark);
    const auto blanks = static_cast<std::size_t>(wholePercent / percentPerMark) - marks;
    console.notes << clearLine << label << " [" << std::string(marks, '#') << std::string(blanks, ' ') << "] "
                  << percent << " %" << std::flush;
}

}  // namespace ballhaven::data
