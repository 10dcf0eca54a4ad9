#include "statistics/Repeaters.h"

#include "state/AppState.h"
#include "state/ViewRows.h"
#include "state/modUTILS.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace ballhaven {

namespace {

/// Repeats by pick value.
using RepeatCounts = std::array<std::ptrdiff_t, pickValues>;

struct Repeater {
    std::int16_t pick;
    std::int16_t repeats;
};

RepeatCounts CountRepeats() {
    RepeatCounts repeats{};
    for (int game = 0; game < appState.historyViewLast; ++game) {
        const auto nextPicks = PicksOfDraw(game + 1);
        for (const std::int16_t pick : PicksOfDraw(game)) {
            if (0 <= pick && pick < pickValues) {
                repeats[static_cast<std::size_t>(pick)] += std::ranges::count(nextPicks, pick);
            }
        }
    }
    return repeats;
}

/// The repeaters in the order of their rows in `hotNumberTable`. Counts them in `repeaterLast` as it finds them.
std::vector<Repeater> FindRepeaters() {
    const RepeatCounts counts = CountRepeats();
    std::vector<Repeater> repeaters;
    for (int row = 0; row <= appState.hotNumberLast; ++row) {
        const std::int16_t pick = appState.hotNumberTable(1, row);
        const std::int16_t repeats = modUTILS::ToInt16(counts.at(static_cast<std::size_t>(pick)));
        if (repeats > 0) {
            repeaters.push_back({pick, repeats});
            ++appState.repeaterLast;
        }
    }
    return repeaters;
}

bool StandsBefore(const Repeater& repeater, const Repeater& other) {
    return repeater.repeats != other.repeats ? repeater.repeats > other.repeats : repeater.pick < other.pick;
}

Table SortedTable(std::vector<Repeater> repeaters) {
    Table table(3, static_cast<int>(repeaters.size()));
    // QUIRK REPEATER-ZEROS-1: a repeater below the main range has a row, but the sort, which walks the main range,
    // never comes to it, and the row stays 0, 0 at the end; its interval is a division by zero. It is meant: the row
    // tells of such a repeater. Leaving it out would take a row away that belongs to the count.
    std::erase_if(repeaters, [](const Repeater& repeater) {
        return repeater.pick < appState.mainLow || repeater.pick > appState.mainHigh;
    });
    std::ranges::sort(repeaters, StandsBefore);
    for (int row = 0; const Repeater& repeater : repeaters) {
        table(1, row) = repeater.pick;
        table(2, row) = repeater.repeats;
        ++row;
    }
    return table;
}

}  // namespace

void ComputeRepeaters() {
    appState.repeaterLast = -1;
    const std::vector<Repeater> repeaters = FindRepeaters();
    // QUIRK REPEATERS-CAPTION-1: the caption is set while Paired Once is on show, not while Repeaters is. It is meant:
    // the selector captions Repeaters when it is chosen, and that caption stands until it is chosen again, with its
    // number of games and also over an empty table. Asking for Repeaters here would change it behind the user's back.
    const bool setsCaption = ShownHotTable() == HotTable::PairedOnce;
    if (!repeaters.empty()) {
        if (setsCaption) {
            ShowHotCaption("Hot Repeaters");
        }
        appState.repeaterTable = SortedTable(repeaters);
    } else if (setsCaption) {
        ShowNoneFoundCaption("Hot Repeaters");
    }
    appState.repeaterStale = false;
}

}  // namespace ballhaven
