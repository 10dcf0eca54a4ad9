#pragma once

#include "data/exchange/DateForm.h"
#include "data/exchange/DrawColumns.h"
#include "state/GameRules.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace ballhaven::data {

/// What the user says of a file of draws; what he does not say is recognised.
struct GivenForm {
    std::optional<char> delimiter = {};
    std::optional<DateOrder> dates = {};
    std::optional<bool> header = {};
    std::string columns = {};  ///< as `ChosenColumns` takes them
};

/// How a file of draws is to be read.
struct FileForm {
    char delimiter = ',';
    DateOrder dates = DateOrder::yearFirst;
    int recordsAbove = 0;  ///< the draws: a header, and what stands over it
    DrawColumns columns;
};

/// Recognises the form of a file of draws of a game: the delimiter by the first lines, or by one such as "sep=;" above
/// all others; what stands above the draws by holding neither a date nor a pick; the order of the dates as
/// `DateOrderFinder` does. A header alone, as wide as a draw, is a file without draws. Leaves the stream at its
/// beginning. Throws Refusal where the form is not clear, where there is nothing but a header that is none of this
/// game, and for an export of plays.
[[nodiscard]] FileForm RecognisedForm(std::istream& bytes, const GivenForm& given, const GameRules& rules);

}  // namespace ballhaven::data
