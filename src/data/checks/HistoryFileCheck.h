#pragma once

#include "data/checks/Examination.h"
#include "data/checks/GameTableCheck.h"

namespace ballhaven::data {

/// Looks through the file of draws of a slot: the header, each row's date and picks, and the order of the rows.
[[nodiscard]] CheckedFile CheckHistoryFile(const FoundFile& found, const CheckedSlot& slot, bool folderIsMended);

}  // namespace ballhaven::data
