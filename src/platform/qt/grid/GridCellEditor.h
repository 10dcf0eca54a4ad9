#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridNavigation.h"

#include <QLineEdit>

#include <functional>

namespace ballhaven::platform {

/// The floating editor of a grid's current cell. A refused value leaves it open, with its text and the cursor in it.
class GridCellEditor : public QLineEdit {
  public:
    /// How the editor begins: with the whole text selected, with the cursor behind it, or with what was typed in its
    /// place.
    enum class Start { Selected, Behind, Typed };

    explicit GridCellEditor(Grid& editedGrid);

    /// Opens over the grid's current cell, whose place in `viewport` is given.
    void Open(QWidget& viewport, const QRect& place, const QString& text, Start start);

    [[nodiscard]] bool IsOpen() const { return open; }

    /// Puts the open editor over its cell after that has moved.
    void PutOver(const QRect& place);

    /// Ends the edit: a text that was changed is given to the grid, which may refuse it. True when no editor is open
    /// any more, or while the value is just being checked; false too when the grid's widget went meanwhile. While the
    /// grid is switched off the text is dropped.
    bool Leave();

    /// Drops the text; the cell keeps its value.
    void Cancel();

    /// A key; true when it has been served and is not for the text.
    std::function<bool(QKeyEvent& key)> keyPressed;

    /// The grid has refused the text; the editor takes the keyboard again, with its whole text selected.
    std::function<void()> refused;

    /// The keyboard has gone to another control by the given reason, while the editor was open.
    std::function<void(Qt::FocusReason reason)> focusLost;

    /// The editor is about to close with the keyboard in it.
    std::function<void()> handFocusBack;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Close();

    Grid& grid;
    GridCell cell;
    bool open = false;
    bool checking = false;
};

}  // namespace ballhaven::platform
