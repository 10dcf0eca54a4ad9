#pragma once

#include "state/AppState.h"

#include <string>
#include <string_view>

namespace ballhaven::data {

/// The plays of a content; those that it lacks are empty.
[[nodiscard]] PlayPicks PlaysOf(std::string_view content);

/// The plays of a slot of a folder, all empty where it has no file of plays yet. Throws Refusal.
[[nodiscard]] PlayPicks ReadPlays(const std::string& directory, int slot);

}  // namespace ballhaven::data
