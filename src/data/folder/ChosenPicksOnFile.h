#pragma once

#include "state/AppState.h"

#include <string>
#include <string_view>

namespace ballhaven::data {

/// The picks chosen for the wheels of a game's slot in a content, main and bonus; none where it has no such records.
[[nodiscard]] ChosenPicks ChosenPicksOf(std::string_view content, int slot);

/// Those of a slot of a folder. Throws Refusal.
[[nodiscard]] ChosenPicks ReadChosenPicks(const std::string& directory, int slot);

}  // namespace ballhaven::data
