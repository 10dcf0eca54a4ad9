#include "statistics/HotFigures.h"

#include "state/MendedFolder.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace ballhaven {

// QUIRK HOT-OVERFLOW-1: the product of a percentage is a 16-bit one, so 328 hits overflow, which ends the program where
// the cell is drawn and the data report at its row. Files and habits rest on it. QUIRK REPEATER-ZEROS-1: the interval
// of a repeaters row of zeros is a division by zero. In a mended folder neither is a failure.
FigureRange FiguresOfFolder() {
    return FolderIsMended() ? FigureRange::Whole : FigureRange::Narrow;
}

// QUIRK HOT-PERCENT-1: a pick that stands twice in one draw counts twice, so the percentage can pass 100. It is the
// share of the hits column beside it, and a limit at 100 would let the two disagree.
int HotPercentage(int games, int hits, FigureRange range) {
    const int product = hits * 100;
    if (range == FigureRange::Whole) {
        return product / std::max(games, 1);
    }
    return modUTILS::Divide(modUTILS::ToInt16(product), games);
}

std::string IntervalText(int games, int hits, FigureRange range) {
    if (hits == 0) {
        if (range == FigureRange::Whole) {
            return {};
        }
        throw RuntimeFailure(RuntimeFailure::Kind::DivisionByZero);
    }
    // Ten times a single-precision number fits into double precision, so that it is the exact value that gets rounded.
    const auto interval = static_cast<float>(static_cast<double>(games) / hits);
    const auto tenths = static_cast<std::int64_t>(std::round(static_cast<double>(interval) * 10));
    const std::int64_t whole = tenths / 10;
    return (whole == 0 ? std::string() : std::to_string(whole)) + '.' + std::to_string(tenths % 10);
}

}  // namespace ballhaven
