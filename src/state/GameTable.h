#pragma once

#include <string>

namespace ballhaven {

/// Opens `LOTTOSYS`, creating its content when it has 0 or 64 bytes, and fills `systemRecord`.
void OpenGameTable();

/// Writes `systemRecord` as record 1.
void SaveSystemRecord();

/// The text of an unused slot's record for a kind of game (0 to 5). Touches no file.
[[nodiscard]] std::string BuildDefaultGameRecord(int slot, int gameType);

/// Reads the record of a slot (1 to 20) into `gameRecord`, converts one of an older form, and fills the game variables.
/// The record is stored under `currentGame`, whatever the slot.
void LoadGameRecord(int slot);

/// Writes `gameRecord` as the record of a slot (1 to 20).
void SaveGameRecord(int slot);

/// The record of a slot (1 to 20) as it stands in the file; changes nothing in `appState`.
[[nodiscard]] std::string ReadGameRecord(int slot);

/// Columns 4-23, the name of the game with its trailing blanks.
[[nodiscard]] std::string GameName(const std::string& record);

}  // namespace ballhaven
