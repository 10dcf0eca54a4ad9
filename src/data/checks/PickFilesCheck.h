#pragma once

#include "data/checks/Examination.h"
#include "data/folder/GamesOnFile.h"

#include <vector>

namespace ballhaven::data {

/// Looks through a file of plays of a game: how each was made, and its picks.
[[nodiscard]] CheckedFile CheckPlayFile(const FoundFile& found, const GameOnFile& game);

/// Looks through the file of chosen picks: the lists of all games (from slot 1 to 20).
[[nodiscard]] CheckedFile CheckChosenPicksFile(const FoundFile& found, const std::vector<GameOnFile>& games);

}  // namespace ballhaven::data
