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
    while (rows < rowCount && cellText(rows, panes.front().firstColumn)) {
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
    Move(pane, currentRow, wanted.Has(currentColumn) ? currentColumn : wanted.firstColumn);
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
    Move(pane, row, column);
}

void Grid::MoveByUser(int pane, int row, int column) {
    Move(pane, row, column);
}

void Grid::Move(int pane, int row, int column) {
    const int wantedRow = rowCount == 0 ? -1 : std::clamp(row, 0, rowCount - 1);
    const int wantedColumn = std::clamp(column, 0, std::max(0, ColumnCount() - 1));
    const bool moves = pane != currentPane || wantedRow != currentRow || wantedColumn != currentColumn;
    currentPane = pane;
    currentRow = wantedRow;
    currentColumn = wantedColumn;
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
    return cellText(currentRow, column).value_or(std::string());
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
