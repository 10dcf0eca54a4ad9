#include "state/ViewRows.h"

#include "state/AppState.h"

#include <algorithm>

namespace ballhaven {

namespace {

constexpr int dateColumn = 0;

}  // namespace

int RowOfDate(std::int16_t date) {
    for (int row = 0; row <= appState.historyViewLast; ++row) {
        if (appState.historyView.Has(dateColumn, row) && appState.historyView(dateColumn, row) == date) {
            return row;
        }
    }
    return -1;
}

std::span<const std::int16_t> PicksOfDraw(int row) {
    const Table& view = appState.historyView;
    const int picks = std::min<int>(appState.totalPicks, view.Columns() - 1);
    if (picks < 1 || !view.Has(0, row)) {
        return {};
    }
    return view.Row(row).subspan(1, static_cast<std::size_t>(picks));
}

}  // namespace ballhaven
