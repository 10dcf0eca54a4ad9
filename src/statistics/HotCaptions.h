#pragma once

#include "statistics/HotTableKinds.h"

#include <array>
#include <string>
#include <string_view>

namespace ballhaven {

/// The caption of a table over so many games: "Hot Pairs in last 25 games".
[[nodiscard]] std::string HotCaption(HotTable table, int gameType, int games);

/// The caption of a table without rows: "Pairs (none found)".
[[nodiscard]] std::string NoneFoundCaption(HotTable table, int gameType);

/// The headings of the four columns of a table.
[[nodiscard]] std::array<std::string_view, 4> HotHeadings(HotTable table, int gameType);

/// Sets the caption of `grdHot` to that of Hot Numbers or Hot Cards, with or without rows as `hotNumberLast` says.
void ShowHotNumbersCaption();

/// Sets the headings of the four columns of `grdHot` for the table that `hotTableChoice` names.
void ShowHotHeadings();

/// Sets the caption with which the hot selector opens the table that `hotTableChoice` names. Only Hot Numbers has one
/// of its own without rows; the builders of the others may replace theirs.
void ShowChosenHotCaption();

/// Sets the caption of `grdHot` for a table that was built, other than Hot Numbers, but only while the table is on show
/// during which its builder may: Hot Pairs and Paired Once themselves, Paired Once for Repeaters, Repeaters for
/// No-Hitters.
void ShowBuiltCaption(HotTable built, bool hasRows);

}  // namespace ballhaven
