#pragma once

#include "platform/controls/DrawingSurface.h"

namespace ballhaven {

/// Gives the calendar its size by the texts of its surface, and sets `charHeight`, `cellWidth`, `rowHeight`,
/// `gridLeft`, `gridTop`, `prevRect` and `nextRect`.
void MeasureCalendar();

/// Width of the calendar inside its frame, in pixels.
[[nodiscard]] int InnerWidth();

/// Fills `weekdayLetter` with the first letters of the system's short names of days, from its first day of the week on.
void FillWeekdayLetters();

/// Shows the month of `Today`: sets `shownMonth`, `dayNumber`, `dayColour`, `selectedCell` and `todayCell`.
void LayOutMonth();

/// The letter over a column of days, 1 to 7.
[[nodiscard]] const std::string& LetterOverColumn(int column);

/// Goes back (-1) or forward (1) one month and shows it. The day of `Today` stays, but for one that the month does not
/// have: that becomes its last one.
void StepMonth(int months);

/// Whether a place belongs to the cells of days.
[[nodiscard]] bool IsInDayArea(platform::PixelPoint place);

/// Sets `hitColumn`, `hitRow` and `focusRect` to the cell at a place of the day area.
void AimAt(platform::PixelPoint place);

/// Selects the day of the cell at `hitColumn` and `hitRow`: sets `Today` and `selectedCell`, and goes to the month
/// beside the one on show for a day of it. Raises the subscript failure for a cell before cell 0.
void SelectAimedDay();

}  // namespace ballhaven
