#pragma once

#include "data/exchange/DateForm.h"
#include "data/exchange/DrawColumns.h"
#include "data/folder/DrawsOnFile.h"
#include "state/GameRules.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ballhaven::data {

/// A draw that a record holds, or, in words, what keeps it from being one of the game.
struct CheckedDraw {
    DrawOnFile draw;
    std::string fault;  ///< empty for none
};

/// Reads a draw out of a record's fields: the date, then the picks in the order in which they stand, an empty field
/// being an empty cell. Checks it as typing does, and besides that no pick stands twice where the game does not allow
/// that. `lastDate` is the last serial that the file of draws keeps.
[[nodiscard]] CheckedDraw CheckDraw(const Fields& fields, const DrawColumns& columns, DateOrder dates,
                                    const GameRules& rules, int lastDate);

/// The pick that a text without blanks holds: a number, or in a card game a card's text such as "Ah" or "10c" too. None
/// for any other text, whatever the game's limits.
[[nodiscard]] std::optional<std::int16_t> PickIn(std::string_view text, int gameType);

}  // namespace ballhaven::data
