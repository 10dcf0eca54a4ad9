#include "calendar/MonthPainting.h"

#include "calendar/MonthLayout.h"
#include "forms/CalendarForm.h"
#include "state/DateMask.h"

#include <string>

namespace ballhaven {

namespace {

using platform::black;
using platform::buttonFaceColor;
using platform::buttonShadowColor;
using platform::Canvas;
using platform::Color;
using platform::PixelPoint;
using platform::white;

constexpr Color darkBlue{0, 0, 128};
constexpr Color grey{128, 128, 128};

/// Draws lines that each begin where the one before ended.
class Pen {
  public:
    Pen(Canvas& drawnCanvas, PixelPoint start) : canvas(drawnCanvas), place(start) {}

    Pen& Run(int right, int down, const Color& color) {
        const PixelPoint end{place.x + right, place.y + down};
        canvas.DrawLine(place, end, color);
        place = end;
        return *this;
    }

  private:
    Canvas& canvas;
    PixelPoint place;
};

void PaintRaisedButton(Canvas& canvas, int x) {
    Pen(canvas, {x, 12}).Run(0, -10, white).Run(11, 0, white);
    Pen(canvas, {x, 13}).Run(11, 0, black).Run(0, -12, black);
    Pen(canvas, {x + 1, 12}).Run(9, 0, buttonShadowColor).Run(0, -10, buttonShadowColor);
}

/// An arrow whose base stands at x and whose tip lies two pixels further in a direction, -1 or 1.
void PaintArrow(Canvas& canvas, int x, int direction) {
    Pen(canvas, {x, 5}).Run(0, 5, black);
    Pen(canvas, {x + direction, 6}).Run(0, 3, black);
    canvas.DrawPixel({x + 2 * direction, 7}, black);
}

void PaintArrowButtons(Canvas& canvas) {
    PaintRaisedButton(canvas, ahcCalendar.prevRect.left);
    PaintArrow(canvas, 8, -1);
    PaintRaisedButton(canvas, ahcCalendar.nextRect.left);
    PaintArrow(canvas, ahcCalendar.nextRect.left + 4, 1);
}

void PaintTitle(Canvas& canvas) {
    const int left = ahcCalendar.prevRect.right + 1;
    const int right = ahcCalendar.nextRect.left - 1;
    canvas.FillBox({left, 1}, right - left + 1, ahcCalendar.charHeight, buttonFaceColor);
    const std::string title = FormatDate(ahcCalendar.shownMonth / 1, "mmmm yyyy");
    canvas.DrawText({InnerWidth() / 2 - ahcCalendar.surface.TextWidth(title) / 2, 0}, title, black);
}

/// Prints a text that ends at the right of a column of days, 1 to 7.
void PrintInColumn(Canvas& canvas, int column, int y, const std::string& text, const Color& color) {
    const int right = ahcCalendar.cellWidth * column + ahcCalendar.gridLeft;
    canvas.DrawText({right - ahcCalendar.surface.TextWidth(text), y}, text, color);
}

void PaintWeekdays(Canvas& canvas) {
    for (int column = 1; column <= 7; ++column) {
        PrintInColumn(canvas, column, ahcCalendar.rowHeight, LetterOverColumn(column), black);
    }
}

void PaintDayArea(Canvas& canvas) {
    canvas.FillBox({2, 2 * ahcCalendar.charHeight}, InnerWidth() - 4, 7 * ahcCalendar.charHeight, buttonFaceColor);
    const int ruleY = 2 * ahcCalendar.charHeight - 1;
    const int ruleLength = InnerWidth() - 12;
    Pen(canvas, {6, ruleY}).Run(ruleLength, 0, buttonShadowColor);
    Pen(canvas, {6, ruleY + 1}).Run(ruleLength, 0, white);
}

void PaintSunkenFrame(Canvas& canvas, int left, int y) {
    Pen(canvas, {left, y}).Run(ahcCalendar.cellWidth, 0, buttonShadowColor);
    Pen(canvas, {left, y}).Run(0, ahcCalendar.rowHeight - 1, buttonShadowColor);
    Pen(canvas, {left + ahcCalendar.cellWidth, y})
        .Run(0, ahcCalendar.rowHeight - 2, white)
        .Run(-ahcCalendar.cellWidth, 0, white);
}

void PaintCell(Canvas& canvas, int row, int column) {
    const int cell = (row - 1) * 7 + column;
    const int left = (column - 1) * ahcCalendar.cellWidth + 5;
    const int y = (row + 1) * ahcCalendar.rowHeight;
    Color color = ahcCalendar.dayColour[static_cast<std::size_t>(cell)] == 0 ? black : grey;
    if (cell == ahcCalendar.selectedCell) {
        color = white;
        canvas.FillBox({left + 1, y}, ahcCalendar.cellWidth - 1, ahcCalendar.rowHeight - 2, darkBlue);
    }
    if (cell == ahcCalendar.todayCell) {
        PaintSunkenFrame(canvas, left, y);
    }
    const int textY = (row - 1) * ahcCalendar.rowHeight + ahcCalendar.gridTop;
    PrintInColumn(canvas, column, textY, std::to_string(ahcCalendar.dayNumber[static_cast<std::size_t>(cell)]), color);
}

void PaintCells(Canvas& canvas) {
    for (int row = 1; row <= 6; ++row) {
        for (int column = 1; column <= 7; ++column) {
            PaintCell(canvas, row, column);
        }
    }
}

}  // namespace

void PaintCalendar(Canvas& canvas) {
    PaintArrowButtons(canvas);
    PaintTitle(canvas);
    PaintWeekdays(canvas);
    PaintDayArea(canvas);
    PaintCells(canvas);
}

}  // namespace ballhaven
