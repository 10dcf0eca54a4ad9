#include "statistics/HotTables.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotPairs.h"
#include "statistics/NoHitters.h"
#include "statistics/PairedOnce.h"
#include "statistics/Repeaters.h"

#include <array>
#include <cstddef>

namespace ballhaven {

namespace {

/// What `appState` keeps of a table, and the routine that builds it. Hot Numbers is never stale.
struct KeptTable {
    void (*build)();
    bool AppState::*stale;
    std::int16_t AppState::*last;
};

/// By `hotTableChoice` - 1.
constexpr std::array<KeptTable, 5> keptTables{{
    // clang-format off
    {nullptr,           nullptr,                    &AppState::hotNumberLast},
    {ComputeHotPairs,   &AppState::hotPairStale,    &AppState::hotPairLast},
    {ComputePairedOnce, &AppState::pairedOnceStale, &AppState::pairedOnceLast},
    {ComputeRepeaters,  &AppState::repeaterStale,   &AppState::repeaterLast},
    {ComputeNoHitters,  &AppState::noHitterStale,   &AppState::noHitterLast},
    // clang-format on
}};

const KeptTable& Kept(HotTable table) {
    return keptTables.at(static_cast<std::size_t>(table) - 1);
}

/// Builds the table on show from the new count.
void RebuildShownTable() {
    const HotTable shown = ShownHotTable();
    if (shown == HotTable::HotNumbers) {
        ShowHotNumbersCaption();
    } else {
        BuildHotTable(shown);
    }
    frmMainForm.hotRowCount = static_cast<std::int16_t>(LastRowOf(shown) + 1);
}

}  // namespace

void ComputeHotTable() {
    const bool isChosen = appState.hotTableChoice > 0;
    CountHotNumbers();
    if (isChosen) {
        RebuildShownTable();
    }
    frmMainForm.grdHot.SetRowCount(frmMainForm.hotRowCount);
    if (isChosen) {
        frmMainForm.grdHot.ReadAgain();
        frmMainForm.grdHot.GoTo(0, 2);
    }
}

void BuildHotTable(HotTable table) {
    if (const KeptTable& kept = Kept(table); kept.build != nullptr) {
        kept.build();
    }
}

void RefreshHotTable(HotTable table) {
    if (const KeptTable& kept = Kept(table); kept.stale != nullptr && appState.*kept.stale) {
        kept.build();
    }
}

std::int16_t LastRowOf(HotTable table) {
    return appState.*Kept(table).last;
}

}  // namespace ballhaven
