#pragma once

#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/RecordField.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ballhaven {

// The file of the chosen picks, SHUFFLE.CDB: a record for the main list of each game, and behind those one for the
// bonus list of each. Texts and values only; nothing here knows a file or `appState`.

inline constexpr const char* chosenFileName = "SHUFFLE.CDB";
inline constexpr int chosenRecordLength = 320;
inline constexpr int chosenFileRecords = 2 * gameSlots;
inline constexpr int olderChosenFileRecords = gameSlots;  ///< of the version without bonus lists

namespace chosenField {

inline constexpr RecordField method{300, methodCodeWidth};  // of a main list; a bonus list has none

/// A pick, from 1.
[[nodiscard]] constexpr RecordField Pick(int pick) {
    return {3 * pick - 2, 2};
}

}  // namespace chosenField

/// The record of the list of a game's slot (1 to 20).
[[nodiscard]] int ChosenRecordOf(int slot, PickColumn list);

/// Puts the picks of a list's record, at its full length, into the slots of the list, closed up from the first on.
/// Slots behind them stay. A field that holds no number reads as 0.
void DecodeChosenPicks(std::string_view record, std::span<std::int16_t> slots);

/// The record of a list's picks, closed up. Of a cell number above 99 the first two digits are stored.
[[nodiscard]] std::string EncodeChosenPicks(std::span<const std::int16_t> slots);

}  // namespace ballhaven
