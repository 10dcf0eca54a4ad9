#include "state/modUTILS.h"

#include "state/RuntimeFailure.h"

#include <algorithm>
#include <limits>

namespace ballhaven::modUTILS {

std::int64_t ValueOf(std::string_view text) {
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (const char character : text) {
        if (character == ' ') {
            continue;
        }
        if (character < '0' || character > '9') {
            break;
        }
        const int digit = character - '0';
        value = value > (largest - digit) / 10 ? largest : value * 10 + digit;
    }
    return value;
}

std::int16_t ValueOf16(std::string_view text) {
    return ToInt16(ValueOf(text));
}

std::int16_t ToInt16(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) {
        throw RuntimeFailure(RuntimeFailure::Kind::Overflow);
    }
    return static_cast<std::int16_t>(value);
}

std::int16_t Divide(std::int64_t dividend, std::int64_t divisor) {
    if (divisor == 0) {
        throw RuntimeFailure(RuntimeFailure::Kind::DivisionByZero);
    }
    // The one quotient that the wide type does not hold either.
    if (dividend == std::numeric_limits<std::int64_t>::min() && divisor == -1) {
        throw RuntimeFailure(RuntimeFailure::Kind::Overflow);
    }
    return ToInt16(dividend / divisor);
}

std::string FixedWidth(std::string_view text, int width) {
    std::string fixed(text);
    fixed.resize(static_cast<std::size_t>(width), ' ');
    return fixed;
}

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

char LowerCase(char character) {
    return 'A' <= character && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

char UpperCase(char character) {
    return 'a' <= character && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

std::string ZeroPadded(std::int64_t value, int width) {
    const auto columns = static_cast<std::size_t>(width);
    const std::string digits = std::string(columns - 1, '0') + std::to_string(value);
    return digits.substr(digits.size() - columns);
}

std::string PickField(int pick) {
    const std::string digits = std::to_string(pick);
    return digits.size() < 2 ? " " + digits : digits.substr(0, 2);
}

std::int16_t PickOfField(std::string_view field) {
    return field == "  " ? std::int16_t{-1} : ValueOf16(field);
}

std::string Columns(std::string_view record, int first, int width) {
    const std::size_t start = std::min(static_cast<std::size_t>(first - 1), record.size());
    return FixedWidth(record.substr(start, static_cast<std::size_t>(width)), width);
}

void SetColumns(std::string& record, int first, std::string_view text) {
    const auto start = static_cast<std::size_t>(first - 1);
    if (start < record.size()) {
        const std::size_t width = std::min(text.size(), record.size() - start);
        record.replace(start, width, text.substr(0, width));
    }
}

}  // namespace ballhaven::modUTILS
