#include "printing/PlaySort.h"

#include "state/GameRecordColumns.h"
#include "state/MendedFolder.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <vector>

namespace ballhaven {

namespace {

/// Puts the picks from 0 to `high` among the first `count` slots into `sorted`, in ascending order, as many as
/// `mostPicks`.
void SortSlots(std::span<const std::int16_t> slots, int count, int high, int mostPicks,
               std::span<std::int16_t> sorted) {
    std::vector<std::int16_t> picks;
    std::ranges::copy_if(slots.first(static_cast<std::size_t>(std::clamp(count, 0, picksPerPlay))),
                         std::back_inserter(picks), [high](std::int16_t pick) { return 0 <= pick && pick <= high; });
    std::ranges::sort(picks);
    picks.resize(std::min(picks.size(), static_cast<std::size_t>(std::max(1, mostPicks))));
    std::ranges::copy(picks, sorted.begin());
}

}  // namespace

PlayPicks SortedPlays(const PlayPicks& plays, int lastUsedPlay, const PlaySortRules& rules) {
    PlayPicks sorted;
    for (int play = 1; play <= lastUsedPlay; ++play) {
        SortSlots(plays.Slots(mainPicks, play), rules.mainPickCount, rules.mainHigh, rules.mostPicks,
                  sorted.Slots(mainPicks, play));
        SortSlots(plays.Slots(bonusPicks, play), rules.bonusPickCount, rules.bonusHigh, rules.mostPicks,
                  sorted.Slots(bonusPicks, play));
    }
    return sorted;
}

PlayPicks sortPlaysForReport(int lastUsedPlay) {
    if (lastUsedPlay == 0 || FieldText(appState.gameRecord, gameField::order) == "Y") {
        return appState.PlayTable;
    }
    const int bonusCount = HasBonus(appState.gameType) ? appState.bonusPickCount : 0;
    PlayPicks sorted =
        SortedPlays(appState.PlayTable, lastUsedPlay,
                    {appState.mainPickCount, bonusCount, appState.totalPicks, appState.mainHigh, appState.bonusHigh});
    // QUIRK PLAY-SORT-1: the plays in memory are sorted. Cells that get no pick hold 0, the first cell of the board,
    // and not -1, in all 5000 plays, which also lose the way in which they were made. The report that is printed next
    // finds all of them in use, and the next save takes them to the file. Files and habits rest on it. In a mended
    // folder only what is printed is sorted.
    if (!FolderIsMended()) {
        appState.PlayTable = sorted;
    }
    return sorted;
}

}  // namespace ballhaven
