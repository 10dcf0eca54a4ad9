#pragma once

#include "state/AppState.h"
#include "state/GameRecord.h"

#include <array>
#include <string>

namespace ballhaven {

/// Opens `LOTTOSYS`, creating its content when it has 0 or 64 bytes, and fills `systemRecord`.
void OpenGameTable();

/// Writes `systemRecord` as record 1.
void SaveSystemRecord();

/// Reads the record of a slot (1 to 20) into `gameRecord`, converts one of an older form, and fills the game variables.
/// The record is stored under `currentGame`, whatever the slot; in a mended folder under the slot.
void LoadGameRecord(int slot);

/// Writes `gameRecord` as the record of a slot (1 to 20).
void SaveGameRecord(int slot);

/// The record of a slot (1 to 20) as it stands in the file; changes nothing in `appState`.
[[nodiscard]] std::string ReadGameRecord(int slot);

/// The records of slots 1 to 20 as they stand in the file, read at one go; changes nothing in `appState`.
[[nodiscard]] std::array<std::string, gameSlots> ReadGameRecords();

}  // namespace ballhaven
