#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

namespace ballhaven::data {

/// Lists the twenty slots with kind, rules, draws, first and last date, and plays in use. Throws Refusal.
void ListGames(const WorkFolder& folder, const Console& console);

}  // namespace ballhaven::data
