#pragma once

#include "data/checks/Examination.h"
#include "state/GameRules.h"

#include <optional>
#include <vector>

namespace ballhaven::data {

enum class SlotUse {
    Game,
    Free,
    Unknown,  ///< its record tells nothing
};

/// What the table tells of a slot.
struct CheckedSlot {
    int slot = 0;  ///< 1 to 20
    SlotUse use = SlotUse::Unknown;
    std::optional<GameRules> rules{};  ///< of its game; none where the record does not tell all of them
};

/// What came of looking the table through. All but the findings is so once it has been mended.
struct CheckedTable {
    CheckedFile file;
    std::vector<CheckedSlot> slots;
    bool folderIsMended = false;
};

/// Looks through `LOTTOSYS`: the program's own record and those of the twenty slots. Where files of draws have the mark
/// of dates with five digits, a damaged mark of a mended folder may have been one.
[[nodiscard]] CheckedTable CheckGameTable(const FoundFile& found, bool drawsAreMarked);

/// Twenty slots, all of one use, of a table that tells nothing more.
[[nodiscard]] std::vector<CheckedSlot> SlotsWithoutTable(SlotUse use);

}  // namespace ballhaven::data
