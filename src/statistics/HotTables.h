#pragma once

#include "statistics/HotTableKinds.h"

#include <cstdint>
#include <span>

namespace ballhaven {

/// Counts the hot numbers of the view anew, and rebuilds the table on show from them. Sets what `CountHotNumbers` and
/// the shown table's own routine set, and of the main window `hotRowCount` and the rows, the caption and the current
/// cell of `grdHot`. Raises the failures of the shown table.
void ComputeHotTable();

/// Builds a table anew from `hotNumberTable` and the view, and clears its stale flag. Hot Numbers, from which the
/// others come, stays as `ComputeHotTable` left it. Raises the failures of the table's own routine.
void BuildHotTable(HotTable table);

/// Builds a table anew if it is stale. One that is not stays as it is, without looking at a single draw.
void RefreshHotTable(HotTable table);

/// The last row of a table, -1 where it has none.
[[nodiscard]] std::int16_t LastRowOf(HotTable table);

/// The cells of a row from column 1 on: a pick or the two of a pair, and behind them what the table counts. Empty where
/// the table has no such row.
[[nodiscard]] std::span<const std::int32_t> CellsOfRow(HotTable table, int row);

}  // namespace ballhaven
