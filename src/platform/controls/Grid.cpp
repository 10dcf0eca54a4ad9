#include "platform/controls/Grid.h"

#include <algorithm>

namespace ballhaven::platform {

void Grid::SetColumns(int count) {
    columns.clear();
    panes.clear();
    for (int column = 0; column < count; ++column) {
        columns.emplace_back(*this);
    }
    ShowChange();
}

void Grid::AddPane(int firstColumn, int lastColumn) {
    panes.emplace_back(*this, firstColumn, lastColumn);
    ShowChange();
}

void Grid::AddBoards(int count) {
    for (int board = 0; board < count; ++board) {
        AddPane(0, ColumnCount() - 1);
    }
}

void Grid::SetRowCount(int count) {
    const bool hadNoRow = currentRow < 0;
    rowCount = count;
    currentRow = std::min(hadNoRow ? 0 : currentRow, count - 1);
    ShowChange();
}

int Grid::RowsRead() const {
    if (!cellText || panes.empty()) {
        return 0;
    }
    int rows = 0;
    while (rows < rowCount && cellText({0, rows, panes.front().firstColumn})) {
        ++rows;
    }
    return rows;
}

void Grid::GoToRow(int row) {
    GoTo(row, currentColumn);
}

void Grid::GoToColumn(int column) {
    GoTo(currentRow, column);
}

void Grid::GoToPane(int pane) {
    if (!EndEdit()) {
        return;
    }
    const GridPane& wanted = Pane(pane);
    Move({pane, currentRow, wanted.Has(currentColumn) ? currentColumn : wanted.firstColumn});
}

void Grid::GoTo(int row, int column) {
    if (!EndEdit()) {
        return;
    }
    int pane = currentPane;
    if (!Pane(pane).Has(column)) {
        const auto found = std::ranges::find_if(panes, [column](const GridPane& each) { return each.Has(column); });
        pane = found == panes.end() ? currentPane : static_cast<int>(found - panes.begin());
    }
    Move({pane, row, column});
}

void Grid::GoTo(const GridCell& cell) {
    if (EndEdit()) {
        Move(cell);
    }
}

void Grid::Move(const GridCell& cell) {
    const GridCell before = CurrentCell();
    currentPane = std::clamp(cell.pane, 0, std::max(0, PaneCount() - 1));
    currentRow = rowCount == 0 ? -1 : std::clamp(cell.row, 0, rowCount - 1);
    currentColumn = std::clamp(cell.column, 0, std::max(0, ColumnCount() - 1));
    const bool moves = CurrentCell() != before;
    if (view != nullptr) {
        Widget()->ShowCurrentCell();
    }
    if (moves && IsOn() && currentCellChanged) {
        currentCellChanged();
    }
}

std::string Grid::Text(int column) const {
    if (currentRow < 0 || !cellText) {
        return {};
    }
    return cellText({currentPane, currentRow, column}).value_or(std::string());
}

bool Grid::CanType(int column) const {
    return currentRow >= 0 && !Pane(currentPane).locked && !Column(column).locked;
}

bool Grid::Edit(int column, const std::string& text) {
    if (!IsOn() || !CanType(column) || (acceptEdit && !acceptEdit(column, text))) {
        return false;
    }
    if (edited) {
        edited(column, text);
    }
    return true;
}

void Grid::ReadAgain() {
    if (view != nullptr && IsOn()) {
        Widget()->ReadAgain();
    }
}

void Grid::Repaint() {
    if (view != nullptr && IsOn()) {
        Widget()->Repaint();
    }
}

bool Grid::EndEdit() {
    return view == nullptr || Widget()->EndEdit();
}

void Grid::SelectCellText() {
    if (view != nullptr) {
        Widget()->SelectCellText();
    }
}

bool Grid::HasSelectedText() const {
    return view != nullptr && Widget()->HasSelectedText();
}

int Grid::FirstVisibleRow() const {
    return view != nullptr ? Widget()->FirstVisibleRow() : 0;
}

int Grid::VisibleRows() const {
    return view != nullptr ? Widget()->VisibleRows() : rowCount;
}

std::optional<int> Grid::RowTop(int row) const {
    return view != nullptr ? Widget()->RowTop(row) : std::nullopt;
}

int Grid::PaneLeft(int pane) const {
    if (view != nullptr) {
        return Widget()->PaneLeft(pane);
    }
    int left = 0;
    for (int before = 0; before < pane; ++before) {
        for (int column = Pane(before).firstColumn; column <= Pane(before).lastColumn; ++column) {
            left += Column(column).visible ? *Column(column).width : 0;
        }
    }
    return left;
}

void Grid::SwitchOff() {
    if (IsOn()) {
        EndEdit();
    }
    ++switchedOff;
}

void Grid::SwitchOn() {
    --switchedOff;
    if (IsOn()) {
        ShowChange();
    }
}

}  // namespace ballhaven::platform
