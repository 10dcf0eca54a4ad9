#pragma once

#include "state/AppState.h"
#include "state/GameRules.h"
#include "state/RecordField.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ballhaven {

// A file of draws, GAME01.CDB to GAME20.CDB: a header, and behind it a record for each row of the history. Texts and
// values only; nothing here knows a file or `appState`.

[[nodiscard]] std::string HistoryFileName(int slot);

inline constexpr int drawRecordLength = 64;
inline constexpr int headerRecord = 1;
inline constexpr int firstDrawRecord = 2;
inline constexpr int drawFileRecords = 1 + historyRows;
inline constexpr int olderDrawFileRecords = 1 + 100;  ///< of the version that kept 100 draws

/// How many digits of a date's serial a file keeps. Four reach to 18 May 2011.
enum class DateDigits : int { Four = 4, Five = 5 };

/// The header of a file of draws.
namespace drawHeaderField {

inline constexpr RecordField stamp{1, 10};       // of the format; nothing reads it
inline constexpr RecordField digitsMark{64, 1};  // "M" where dates have five digits

}  // namespace drawHeaderField

inline constexpr std::string_view drawFileStamp = "10-26-2002";
inline constexpr std::string_view fiveDigitsMark = "M";

/// A row of a file of draws.
namespace drawField {

inline constexpr RecordField fifthDigit{5, 1};  // of the date; blank where dates have four

[[nodiscard]] constexpr RecordField Date(DateDigits digits) {
    return {1, static_cast<int>(digits)};
}

/// A pick, from 1.
[[nodiscard]] constexpr RecordField Pick(int pick) {
    return {3 * pick + 3, 2};
}

}  // namespace drawField

/// The last serial of a date that a file with so many digits keeps.
[[nodiscard]] constexpr int LastDateOf(DateDigits digits) {
    return digits == DateDigits::Five ? 32'767 : 9999;
}

/// What the header of a file says of its dates.
[[nodiscard]] DateDigits DateDigitsOf(std::string_view header);

/// The header, at its full length, with the mark of a file that keeps five digits.
[[nodiscard]] std::string WithFiveDigits(std::string_view header);

/// The header of a file that the program fills up: the stamp of the format, and the mark of five digits if the header
/// that was found has it.
[[nodiscard]] std::string StampedHeader(const std::string& found);

/// The header without what a deletion takes away.
[[nodiscard]] std::string WithoutDeletedMark(std::string header);

/// Puts a record's date and picks into the cells of a row, the date first, as many picks as there are cells for.
/// Without a date above 0, or with one beyond 16 bits, they stay as they are, and it returns false. A field that holds
/// no number reads as 0.
[[nodiscard]] bool DecodeDraw(std::string_view record, DateDigits digits, std::span<std::int16_t> cells);

/// The record of a row's cells, the date first. One without a date above 0, or without cells, is blank.
[[nodiscard]] std::string EncodeDraw(std::span<const std::int16_t> cells, DateDigits digits);

}  // namespace ballhaven
