#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

#include <optional>
#include <string>

namespace ballhaven::data {

struct SetOptions {
    std::string game;               ///< by name or slot; of the history set
    std::optional<int> historySet;  ///< 10, 20 and so on to 1000
    std::optional<int> shownSlot;   ///< 1 to 20
};

/// Sets in the table of games how many draws a game shows, and which game Ballhaven shows when it starts. No other file
/// is touched or read. Returns the words about the copy of what was there. Throws Refusal.
[[nodiscard]] std::string Set(const WorkFolder& folder, const SetOptions& options, const Console& console);

}  // namespace ballhaven::data
