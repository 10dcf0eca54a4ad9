#pragma once

#include "data/folder/DrawsOnFile.h"
#include "state/GameRules.h"

#include <string>
#include <vector>

namespace ballhaven::data {

/// The names of a game's pick columns, such as ",main1,main2,bonus": those of its main picks and of its bonus picks,
/// with a comma before each.
[[nodiscard]] std::string PickColumnNames(const GameRules& rules);

/// The text of a pick; "?" for a number that is no card of a game of cards.
[[nodiscard]] std::string TextOfPick(int pick, int gameType);

/// Draws as comma-separated values with a header, in ascending order of date: the date as year-month-day, the picks as
/// `TextOfPick` gives them. An empty cell is an empty field.
[[nodiscard]] std::string CsvOfDraws(const GameRules& rules, std::vector<DrawOnFile> draws);

}  // namespace ballhaven::data
