#include "statistics/NoHitters.h"

#include "state/AppState.h"
#include "state/ViewRows.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTableKinds.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace ballhaven {

namespace {

std::int16_t HighestPickToTest() {
    if (!appState.duplicatesAllowed) {
        return appState.mainHigh;
    }
    // QUIRK NO-HITTERS-TOP-1: where duplicates are allowed the list ends at a share of the range, 2 in a game of three
    // picks from 0 to 9. It is meant: each pick of such a draw has its own part of the board, and the list is that of
    // one part. Going on to mainHigh would list numbers that users of these games do not look for here.
    const int share = appState.mainHigh / std::max<int>(1, appState.mainPickCount);
    return static_cast<std::int16_t>(appState.mainLow == 0 ? share - 1 : share);
}

std::vector<std::int16_t> FindNoHitters() {
    const std::int16_t top = HighestPickToTest();
    std::vector<bool> isDrawn(static_cast<std::size_t>(std::max(0, top + 1)));
    for (int game = 0; game <= appState.historyViewLast; ++game) {
        for (const std::int16_t pick : PicksOfDraw(game)) {
            if (0 <= pick && pick <= top) {
                isDrawn[static_cast<std::size_t>(pick)] = true;
            }
        }
    }
    std::vector<std::int16_t> noHitters;
    for (std::int16_t pick = appState.mainLow; pick <= top; ++pick) {
        if (!isDrawn[static_cast<std::size_t>(pick)]) {
            noHitters.push_back(pick);
        }
    }
    return noHitters;
}

}  // namespace

void ComputeNoHitters() {
    std::vector<std::int16_t> noHitters = FindNoHitters();
    appState.noHitterLast = static_cast<std::int16_t>(std::ssize(noHitters) - 1);
    // QUIRK NO-HITTERS-CAPTION-1: the caption is set while Repeaters is on show, not while No-Hitters is. It is meant,
    // as for Repeaters: the selector's caption stands until the table is chosen again.
    const bool setsCaption = ShownHotTable() == HotTable::Repeaters;
    if (!noHitters.empty()) {
        if (setsCaption) {
            ShowHotCaption("No Hitters");
        }
        appState.noHitterTable = std::move(noHitters);
    } else if (setsCaption) {
        ShowNoneFoundCaption("No Hitters");
    }
    appState.noHitterStale = false;
}

}  // namespace ballhaven
