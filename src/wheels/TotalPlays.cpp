#include "wheels/TotalPlays.h"

#include "state/AppState.h"

#include <algorithm>
#include <charconv>

namespace ballhaven {

namespace {

bool BeginsANumber(std::string_view text) {
    return !text.empty() && (text.front() == '.' || ('0' <= text.front() && text.front() <= '9'));
}

/// The number with which a text begins, 0 for one that is too large to be told.
double LeadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative || text.starts_with('+') ? 1 : 0);
    double number = 0;
    if (BeginsANumber(text)) {
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    }
    return isNegative ? -number : number;
}

}  // namespace

std::optional<double> TotalPlaysOf(std::string_view text) {
    // QUIRK TOTAL-PLAYS-1: a total of 1 is refused, although the message offers it. Habits rest on it.
    const double total = LeadingNumber(text);
    return 1 < total && total <= playCount ? std::optional(total) : std::nullopt;
}

}  // namespace ballhaven
