#include "state/ViewRows.h"

#include "state/AppState.h"
#include "state/DrawCells.h"

#include <algorithm>
#include <cstddef>

namespace ballhaven {

std::span<const std::int16_t> DrawRows::Picks(int row) const {
    const int first = std::max(1, columns.first);
    const int last = std::min(columns.last, view->Columns() - 1);
    if (first > last || !view->Has(0, row)) {
        return {};
    }
    return view->Row(row).subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first + 1));
}

DrawRows ViewedDraws() {
    return {appState.historyView, appState.historyViewLast + 1, {1, appState.totalPicks}};
}

int RowOfDate(const Table& draws, int last, std::int16_t date) {
    for (int row = 0; row <= last; ++row) {
        if (draws.Has(dateColumn, row) && draws(dateColumn, row) == date) {
            return row;
        }
    }
    return -1;
}

int RowOfDate(std::int16_t date) {
    return RowOfDate(appState.historyView, appState.historyViewLast, date);
}

std::span<const std::int16_t> PicksOfDraw(int row) {
    return ViewedDraws().Picks(row);
}

}  // namespace ballhaven
