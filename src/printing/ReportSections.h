#pragma once

#include "printing/ReportPage.h"
#include "statistics/HotTableKinds.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ballhaven {

// What stands in the sections of the data report. Each routine reads the game at hand, and changes nothing but
// `monthDays`.

/// By the index of the section's box, and by `hotTableChoice` of its table.
enum class ReportSection : std::int16_t { Log, HotNumbers, HotPairs, PairedOnce, Repeaters, NoHitters };

/// Entries that stand side by side in the lines of a section without columns.
struct Packing {
    int entryWidth;  ///< characters to which an entry is cut or filled up
    int lineLength;  ///< characters of a full line
    int column;      ///< in which the line begins
};

/// The hot table of a section other than the log.
[[nodiscard]] HotTable TableOfSection(ReportSection section);

/// The head of a section, for the games of the view.
[[nodiscard]] SectionHead HeadOfSection(ReportSection section);

/// The last row of a section, -1 where there is none.
[[nodiscard]] std::int16_t LastRowOfSection(ReportSection section);

/// What a section without rows says.
[[nodiscard]] std::string RemarkOfSection(ReportSection section);

/// How a section is packed; none for one that has a line for each row.
[[nodiscard]] std::optional<Packing> PackingOfSection(ReportSection section);

/// The line of a row in a section that is not packed; none for a row of the log without a date. Raises the overflow
/// failure for 328 hits or more, and the failure of a division by zero for none.
[[nodiscard]] std::optional<ReportLine> RowOfSection(ReportSection section, int row);

/// The entry of a row in a section that is packed.
[[nodiscard]] std::string EntryOfSection(ReportSection section, int row);

}  // namespace ballhaven
