#pragma once

#include "platform/controls/Grid.h"

#include <QKeyEvent>

#include <optional>

namespace ballhaven::platform {

/// What the owner is told of a key.
[[nodiscard]] GridKey KeyOf(const QKeyEvent& key);

/// The key opens the drop-down list of a cell: F4, or Alt and Down.
[[nodiscard]] bool IsDropDownKey(const QKeyEvent& key);

/// The key types a character.
[[nodiscard]] bool IsTyping(const QKeyEvent& key);

/// The cell to which a key moves from the current one: an arrow, Page Up, Page Down, Home, End (with Ctrl in the first
/// or last row) or Tab. Only columns that can take the focus count; the arrows go on in the next pane, Tab stays in its
/// own. `rowCount` rows are shown, `pageRows` of them at a time. None where the key moves nothing.
[[nodiscard]] std::optional<GridCell> CellByKey(const Grid& grid, const QKeyEvent& key, int rowCount, int pageRows);

}  // namespace ballhaven::platform
