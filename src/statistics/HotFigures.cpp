#include "statistics/HotFigures.h"

#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"

#include <cmath>

namespace ballhaven {

// QUIRK HOT-PERCENT-1: a pick that stands twice in one draw counts twice, so the percentage can pass 100. It is the
// share of the hits column beside it, and a limit at 100 would let the two disagree.
// QUIRK HOT-OVERFLOW-1: the product is a 16-bit one, so 328 hits overflow, which ends the program where the cell is
// drawn and the data report at its row. Files and habits rest on it.
std::int16_t HotPercentage(int games, int hits) {
    return modUTILS::Divide(modUTILS::ToInt16(hits * 100), games);
}

std::string IntervalText(int games, int hits) {
    if (hits == 0) {
        throw RuntimeFailure(RuntimeFailure::Kind::DivisionByZero);
    }
    // Ten times a single-precision number fits into double precision, so that it is the exact value that gets rounded.
    const auto interval = static_cast<float>(static_cast<double>(games) / hits);
    const auto tenths = static_cast<std::int64_t>(std::round(static_cast<double>(interval) * 10));
    const std::int64_t whole = tenths / 10;
    return (whole == 0 ? std::string() : std::to_string(whole)) + '.' + std::to_string(tenths % 10);
}

}  // namespace ballhaven
