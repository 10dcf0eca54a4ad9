#pragma once

#include "data/checks/Examination.h"

namespace ballhaven::data {

/// Looks through `LOTTOSYS`: the program's own record and those of the twenty slots.
[[nodiscard]] CheckedFile CheckGameTable(const FoundFile& found);

}  // namespace ballhaven::data
