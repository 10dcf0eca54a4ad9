#pragma once

#include "state/GameRules.h"

#include <cstdint>
#include <string>

namespace ballhaven {

/// Record 1 of a new table of games: slot 1 is shown, the oldest draw stands first, nothing is chosen for printing.
[[nodiscard]] std::string NewSystemRecord();

/// The text of an unused slot's record for a kind of game (0 to 5).
[[nodiscard]] std::string BuildDefaultGameRecord(int slot, int gameType);

/// Columns 4-23, the name of the game with its trailing blanks.
[[nodiscard]] std::string GameName(const std::string& record);

/// Whether a name, with blanks or without, is that of a slot that no game has been set up in.
[[nodiscard]] bool IsUndefinedName(const std::string& name);

/// Whether a record's slot is free for a new game.
[[nodiscard]] bool CountsAsFree(const std::string& record);

/// A record in the present form: one of the older form with a letter as its kind gets the kind's digit, its limits and
/// a history set that can be chosen; any other only a digit as its kind.
[[nodiscard]] std::string InPresentForm(std::string record);

/// Whether the conversion mark is a letter, as in the present form.
[[nodiscard]] bool HasConversionMark(const std::string& record);

/// The record with the mark that the number in the mark's place stands for: "Y" where it is above the picks of a draw,
/// else "N".
[[nodiscard]] std::string WithConversionMark(std::string record);

/// The rules, and the size of the history set, that a record of the present form holds.
[[nodiscard]] GameRules RulesOf(const std::string& record);
[[nodiscard]] std::int16_t HistorySetOf(const std::string& record);

}  // namespace ballhaven
