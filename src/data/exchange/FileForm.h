#pragma once

#include "data/exchange/DateForm.h"
#include "data/exchange/DrawColumns.h"

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
    bool hasHeader = false;
    DrawColumns columns;
};

/// Recognises the form of a file of draws with `picks` picks each: the delimiter by the first lines, a header by a date
/// without a digit in the first line, the order of the dates as `DateOrderFinder` does. Leaves the stream at its
/// beginning. Throws Refusal where it is not clear, or where the file holds no draw.
[[nodiscard]] FileForm RecognisedForm(std::istream& bytes, const GivenForm& given, int picks);

}  // namespace ballhaven::data
