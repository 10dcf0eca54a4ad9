#pragma once

#include <string_view>

namespace ballhaven {

/// Sets the caption of `grdHot` to a table's words with the number of games of the view: "Hot Pairs" gives "Hot Pairs
/// in last 25 games".
void ShowHotCaption(std::string_view words);

/// Sets the caption of `grdHot` to that of a table without rows: "Pairs" gives "Pairs (none found)".
void ShowNoneFoundCaption(std::string_view words);

/// Sets the caption of `grdHot` to that of Hot Numbers or Hot Cards, with or without rows as `hotNumberLast` says.
void ShowHotNumbersCaption();

/// Sets the headings of the four columns of `grdHot` for the table that `hotTableChoice` names.
void ShowHotHeadings();

/// Sets the caption with which the hot selector opens the table that `hotTableChoice` names. Only Hot Numbers has one
/// of its own without rows; the builders of the others may replace theirs.
void ShowChosenHotCaption();

}  // namespace ballhaven
