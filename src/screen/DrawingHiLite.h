#pragma once

namespace ballhaven {

/// The toggle over the log's current row. Puts the picks of its draw into the hi-lite boxes of their columns, as text
/// and as stored code, with `colorMode` 2; or, when the boxes hold the codes of just these picks already, empties them,
/// with `colorMode` 0. A blank pick leaves its box empty. With no draw in the row the boxes become empty and
/// `colorMode` stays.
void HiLiteDrawing();

}  // namespace ballhaven
