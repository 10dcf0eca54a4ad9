#include "calendar/MonthPainting.h"

#include "calendar/MonthLayout.h"

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

void PaintArrowButtons(Canvas& canvas, const CalendarMeasures& measures) {
    PaintRaisedButton(canvas, measures.prevRect.left);
    PaintArrow(canvas, 8, -1);
    PaintRaisedButton(canvas, measures.nextRect.left);
    PaintArrow(canvas, measures.nextRect.left + 4, 1);
}

void PaintTitle(Canvas& canvas, const MonthPicture& picture) {
    const CalendarMeasures& measures = picture.measures;
    const int left = measures.prevRect.right + 1;
    const int right = measures.nextRect.left - 1;
    canvas.FillBox({left, 1}, right - left + 1, measures.charHeight, buttonFaceColor);
    canvas.DrawText({InnerWidth(measures) / 2 - picture.textWidth(picture.title) / 2, 0}, picture.title, black);
}

/// Prints a text that ends at the right of a column of days, 1 to 7.
void PrintInColumn(Canvas& canvas, const MonthPicture& picture, int column, int y, const std::string& text,
                   const Color& color) {
    const int right = picture.measures.cellWidth * column + picture.measures.gridLeft;
    canvas.DrawText({right - picture.textWidth(text), y}, text, color);
}

void PaintWeekdays(Canvas& canvas, const MonthPicture& picture) {
    for (int column = 1; column <= daysOfWeek; ++column) {
        PrintInColumn(canvas, picture, column, picture.measures.rowHeight,
                      picture.columnLetters[static_cast<std::size_t>(column)], black);
    }
}

void PaintDayArea(Canvas& canvas, const CalendarMeasures& measures) {
    canvas.FillBox({2, 2 * measures.charHeight}, InnerWidth(measures) - 4, 7 * measures.charHeight, buttonFaceColor);
    const int ruleY = 2 * measures.charHeight - 1;
    const int ruleLength = InnerWidth(measures) - 12;
    Pen(canvas, {6, ruleY}).Run(ruleLength, 0, buttonShadowColor);
    Pen(canvas, {6, ruleY + 1}).Run(ruleLength, 0, white);
}

void PaintSunkenFrame(Canvas& canvas, const CalendarMeasures& measures, PixelPoint corner) {
    Pen(canvas, corner).Run(measures.cellWidth, 0, buttonShadowColor);
    Pen(canvas, corner).Run(0, measures.rowHeight - 1, buttonShadowColor);
    Pen(canvas, {corner.x + measures.cellWidth, corner.y})
        .Run(0, measures.rowHeight - 2, white)
        .Run(-measures.cellWidth, 0, white);
}

void PaintCell(Canvas& canvas, const MonthPicture& picture, int row, int column) {
    const CalendarMeasures& measures = picture.measures;
    const CalendarMonth& month = picture.month;
    const int cell = (row - 1) * daysOfWeek + column;
    const PixelPoint corner{(column - 1) * measures.cellWidth + 5, (row + 1) * measures.rowHeight};
    Color color = month.dayColour[static_cast<std::size_t>(cell)] == shownMonthColour ? black : grey;
    if (cell == month.selectedCell) {
        color = white;
        canvas.FillBox({corner.x + 1, corner.y}, measures.cellWidth - 1, measures.rowHeight - 2, darkBlue);
    }
    if (cell == month.todayCell) {
        PaintSunkenFrame(canvas, measures, corner);
    }
    const int textY = (row - 1) * measures.rowHeight + measures.gridTop;
    const std::string number = std::to_string(month.dayNumber[static_cast<std::size_t>(cell)]);
    PrintInColumn(canvas, picture, column, textY, number, color);
}

void PaintCells(Canvas& canvas, const MonthPicture& picture) {
    for (int row = 1; row <= calendarCells / daysOfWeek; ++row) {
        for (int column = 1; column <= daysOfWeek; ++column) {
            PaintCell(canvas, picture, row, column);
        }
    }
}

}  // namespace

void PaintMonth(Canvas& canvas, const MonthPicture& picture) {
    PaintArrowButtons(canvas, picture.measures);
    PaintTitle(canvas, picture);
    PaintWeekdays(canvas, picture);
    PaintDayArea(canvas, picture.measures);
    PaintCells(canvas, picture);
}

}  // namespace ballhaven
