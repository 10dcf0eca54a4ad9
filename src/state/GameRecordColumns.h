#pragma once

#include "state/AppState.h"
#include "state/RecordField.h"

#include <string_view>

namespace ballhaven {

// The table of games: the program's own record, and behind it one for each slot.

inline constexpr const char* gameTableName = "LOTTOSYS";
inline constexpr int gameRecordLength = 64;
inline constexpr int systemRecordNumber = 1;
inline constexpr int gameTableRecords = systemRecordNumber + gameSlots;

/// Record 1 of the game table. Columns 3, 5 and 7 hold a separator, column 6 a digit that nothing reads.
namespace systemField {

inline constexpr RecordField shownSlot{1, 2};        // two digits
inline constexpr RecordField sortOrder{4, 1};        // "0" the newest draw first, "1" the oldest
inline constexpr RecordField printSelections{8, 6};  // "1" for each report section that is ticked, else "0"
inline constexpr RecordField mendedMark{64, 1};      // "M" in a mended folder, else blank

}  // namespace systemField

/// The record of a game's slot. A separator stands in front of and behind each group of these columns.
namespace gameField {

inline constexpr RecordField slot{1, 2};             // digits, then a blank; never read
inline constexpr RecordField name{4, 20};            // padded with blanks
inline constexpr RecordField historySet{27, 3};      // three digits; "000" stands for 1000
inline constexpr RecordField gameType{31, 1};        // 0 to 5; "N" or "C" in records of the older form
inline constexpr RecordField mainLow{33, 1};         // one digit
inline constexpr RecordField mainHigh{35, 2};        // two digits
inline constexpr RecordField duplicates{42, 1};      // "Y" or "N"
inline constexpr RecordField order{44, 1};           // "Y" or "N"
inline constexpr RecordField mainPickCount{46, 2};   // two digits, or one and a blank
inline constexpr RecordField bonusPickCount{49, 1};  // one digit
inline constexpr RecordField conversion{51, 2};      // "Y " or "N "; a number in records of the older form
inline constexpr RecordField olderText{54, 2};       // blanks, but in records of the older form
inline constexpr RecordField bonusLow{57, 1};        // one digit
inline constexpr RecordField bonusHigh{59, 2};       // two digits

inline constexpr int separators[] = {3, 26, 30, 32, 34, 37, 39, 41, 43, 45, 48, 50, 53, 56, 58, 61};

}  // namespace gameField

/// Columns 4-23 of a slot that no game has been set up in, without the blanks behind.
inline constexpr std::string_view undefinedGameName = "un-defined";

}  // namespace ballhaven
