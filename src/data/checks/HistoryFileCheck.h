#pragma once

#include "data/checks/Examination.h"
#include "data/folder/GamesOnFile.h"

namespace ballhaven::data {

/// Looks through a file of draws of a game: the header, each row's date and picks, and the order of the rows.
[[nodiscard]] CheckedFile CheckHistoryFile(const FoundFile& found, const GameOnFile& game, bool folderIsMended);

}  // namespace ballhaven::data
