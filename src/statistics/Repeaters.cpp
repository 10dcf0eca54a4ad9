#include "statistics/Repeaters.h"

#include "state/AppState.h"
#include "state/MendedFolder.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace ballhaven {

namespace {

/// Repeats by pick value.
using RepeatCounts = std::array<std::ptrdiff_t, pickValues>;

RepeatCounts CountRepeats(const DrawRows& draws) {
    RepeatCounts repeats{};
    for (int game = 0; game < draws.Games() - 1; ++game) {
        const auto nextPicks = draws.Picks(game + 1);
        for (const std::int16_t pick : draws.Picks(game)) {
            if (0 <= pick && pick < pickValues) {
                repeats[static_cast<std::size_t>(pick)] += std::ranges::count(nextPicks, pick);
            }
        }
    }
    return repeats;
}

}  // namespace

FoundRows<PickHits> FindRepeaters(const DrawRows& draws, std::span<const std::int16_t> candidates, PickRange mainPicks,
                                  std::ptrdiff_t mostOfPick) {
    const RepeatCounts counts = CountRepeats(draws);
    FoundRows<PickHits> found;
    for (const std::int16_t pick : candidates) {
        const std::ptrdiff_t repeats = counts.at(static_cast<std::size_t>(pick));
        if (repeats > mostOfPick) {
            found.failure = RuntimeFailure::Kind::Overflow;
            return found;
        }
        if (repeats > 0) {
            found.rows.push_back({pick, static_cast<std::int32_t>(repeats)});
        }
    }
    SortRows(found.rows, mainPicks);
    return found;
}

void ComputeRepeaters() {
    // QUIRK HOT-OVERFLOW-1: the repeats of a pick are a 16-bit number too, but in a mended folder.
    const std::ptrdiff_t mostOfPick = FolderIsMended() ? noLimit : mostRepeats;
    const FoundRows<PickHits> found =
        FindRepeaters(ViewedDraws(), HotNumberPicks(), {appState.mainLow, appState.mainHigh}, mostOfPick);
    appState.repeaterLast = static_cast<std::int16_t>(std::ssize(found.rows) - 1);
    if (found.failure) {
        throw RuntimeFailure(*found.failure);
    }
    ShowBuiltCaption(HotTable::Repeaters, !found.rows.empty());
    if (!found.rows.empty()) {
        appState.repeaterTable = TableOf(found.rows, 3);
    }
    appState.repeaterStale = false;
}

}  // namespace ballhaven
