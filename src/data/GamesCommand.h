#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

namespace ballhaven::data {

/// Lists the twenty slots with kind, rules, draws, first and last date, and plays in use. A file of draws or of plays
/// that cannot be read is told in `console.notes`, and the others are listed. Throws Refusal, then too.
void ListGames(const WorkFolder& folder, const Console& console);

}  // namespace ballhaven::data
