#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridWidget.h"

#include <QImage>
#include <QLineEdit>
#include <QWidget>

#include <string>
#include <vector>

namespace ballhaven::support {

/// A grid in a shown window of its own, between two boxes that can take the keyboard. It writes down every notice that
/// it raises: "press X,Y", "click", "change ROW,COLUMN", "settled", "key Left", "check COLUMN TEXT", "edited COLUMN",
/// "drop COLUMN".
class GridOnScreen {
  public:
    GridOnScreen();
    virtual ~GridOnScreen();

    /// Shows the window with the grid as it has been set up. Called once.
    void Show();

    /// The middle of a cell in pixels from the grid's top left corner.
    [[nodiscard]] QPoint MiddleOf(int row, int column) const;
    [[nodiscard]] QPoint MiddleOf(const platform::GridCell& cell) const;

    void Click(QPoint position);
    void ClickCell(int row, int column) { Click(MiddleOf(row, column)); }
    void PressOnly(QPoint position);
    void MoveTo(QPoint position);
    void ReleaseOnly(QPoint position);

    /// Clicks on another widget of the window.
    void ClickOn(QWidget& other);

    /// Types on whatever has the keyboard.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Type(const std::string& text);

    /// The grid's pixels at a scale.
    [[nodiscard]] QImage Draw(double scale = 1);

    /// The open editor, null for none.
    [[nodiscard]] QLineEdit* Editor() const;
    [[nodiscard]] platform::GridPaneView* PaneView(int pane) const;

    /// Takes what has been written down since the last time.
    [[nodiscard]] std::vector<std::string> TakeNotices();
    [[nodiscard]] platform::GridCell Current() const { return grid.CurrentCell(); }

    /// What the owner knows: rows of texts.
    std::vector<std::vector<std::string>> cells;
    std::vector<std::string> notices;
    int cellsRead = 0;
    int boxes = 0;

    /// Values above this are refused with a box.
    int highest = 49;

    /// Outlives the window, which asks it for its headings until it is closed.
    platform::Grid grid;
    QWidget window;
    QLineEdit* before;
    QLineEdit* after;
    platform::GridWidget* widget = nullptr;

  private:
    void ListenToMouse();
    void ListenToEdits();
};

/// A pixel, at a position in pixels of scale 1.
[[nodiscard]] QRgb PixelAt(const QImage& image, QPoint position);

/// A log of draws: a pane for the date, which has a button, and one for ten picks of which six are used. Six of them
/// are in view. 40 rows are in a place for 20.
class LogOnScreen : public GridOnScreen {
  public:
    LogOnScreen();
};

/// Five boards of 24 rows and nine columns, whose cells tell their board and their number: the first is "A0". "change"
/// is told with the board before row and column.
class BoardsOnScreen : public GridOnScreen {
  public:
    BoardsOnScreen();

    /// The one cell that is white on black.
    platform::GridCell chosen;
};

}  // namespace ballhaven::support
