#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::data {

using Fields = std::vector<std::string_view>;

/// Which fields of a record hold a draw.
struct DrawColumns {
    std::vector<std::size_t> places;  ///< from 0: the date's, then the picks' in the order of the program
    bool passesOthers = false;        ///< what stands in the other fields does not matter

    bool operator==(const DrawColumns&) const = default;
};

/// Whether a choice of columns names one by its header.
[[nodiscard]] bool NamesColumns(std::string_view choice);

/// The columns of a draw of `picks` picks. A choice lists them with commas between: by number from 1 ("1,3-8") or by
/// the name in the header, whose capitals do not matter; an empty one is the date and the picks from the first field
/// on. Throws Refusal for a choice of more or fewer columns, of one twice, or of a name that the header does not have.
[[nodiscard]] DrawColumns ChosenColumns(std::string_view choice, int picks, const Fields& header);

/// What keeps a record's fields from being taken as a draw's: too few or too many of them. Empty where nothing does.
[[nodiscard]] std::string FaultOfWidth(const Fields& fields, const DrawColumns& columns);

}  // namespace ballhaven::data
