#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ballhaven {

/// Helpers that every subsystem uses.
namespace modUTILS {

/// The value rule: skips blanks, reads digits (blanks between them are skipped too), and stops at the first other
/// character; no digits give 0. A value beyond the range of the result is held at its largest one.
[[nodiscard]] std::int64_t ValueOf(std::string_view text);

/// `ValueOf` where a 16-bit integer is needed. Raises the overflow failure above 32767.
[[nodiscard]] std::int16_t ValueOf16(std::string_view text);

/// Checks that a value fits into 16 bits with sign. Raises the overflow failure if not.
[[nodiscard]] std::int16_t ToInt16(std::int64_t value);

/// Division that cuts off the fraction. Raises the failure of a division by zero.
[[nodiscard]] std::int16_t Divide(std::int64_t dividend, std::int64_t divisor);

/// The text cut or padded with blanks at its end to `width` characters.
[[nodiscard]] std::string FixedWidth(std::string_view text, int width);

/// The text without the blanks at both of its ends.
[[nodiscard]] std::string Trimmed(std::string_view text);

/// An ASCII letter in small or in capital form; any other character as it is.
[[nodiscard]] char LowerCase(char character);
[[nodiscard]] char UpperCase(char character);

/// The last `width` characters of `width` - 1 zeros followed by the number's decimal text: 7 in two is "07", 123 in two
/// is "23".
[[nodiscard]] std::string ZeroPadded(std::int64_t value, int width);

/// The digits right-justified in two columns, cut to the first two: 7 is " 7", 100 is "10".
[[nodiscard]] std::string PickField(int pick);

/// The pick that stands in two columns of a record, wherever in them: -1 for two blanks, else the field's value.
[[nodiscard]] std::int16_t PickOfField(std::string_view field);

/// Columns `first` to `first` + `width` - 1 of a record, counted from 1; blanks where the record is shorter.
[[nodiscard]] std::string Columns(std::string_view record, int first, int width);

/// Puts a text over the columns of a record from `first` on, counted from 1. The record keeps its length: what would
/// stand behind it is dropped.
void SetColumns(std::string& record, int first, std::string_view text);

}  // namespace modUTILS
}  // namespace ballhaven
