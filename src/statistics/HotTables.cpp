#include "statistics/HotTables.h"

#include "forms/MainForm.h"
#include "platform/Guard.h"
#include "state/AppState.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotPairs.h"
#include "statistics/NoHitters.h"
#include "statistics/PairedOnce.h"
#include "statistics/Repeaters.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <vector>

namespace ballhaven {

namespace {

/// What `appState` keeps of a table, and the routine that builds it. Hot Numbers is never stale, and No-Hitters has a
/// list for its rows.
struct KeptTable {
    void (*build)();
    bool AppState::*stale;
    std::int16_t AppState::*last;
    CountTable AppState::*rows;
};

/// By `hotTableChoice` - 1.
constexpr std::array<KeptTable, 5> keptTables{{
    // clang-format off
    {nullptr,           nullptr,                    &AppState::hotNumberLast,  &AppState::hotNumberTable},
    {ComputeHotPairs,   &AppState::hotPairStale,    &AppState::hotPairLast,    &AppState::hotPairTable},
    {ComputePairedOnce, &AppState::pairedOnceStale, &AppState::pairedOnceLast, &AppState::pairedOnceTable},
    {ComputeRepeaters,  &AppState::repeaterStale,   &AppState::repeaterLast,   &AppState::repeaterTable},
    {ComputeNoHitters,  &AppState::noHitterStale,   &AppState::noHitterLast,   nullptr},
    // clang-format on
}};

const KeptTable& Kept(HotTable table) {
    return keptTables.at(static_cast<std::size_t>(table) - 1);
}

}  // namespace

void ComputeHotTable() {
    CountHotNumbers();
    const bool isChosen = appState.hotTableChoice > 0;
    if (isChosen) {
        if (ShownHotTable() == HotTable::HotNumbers) {
            ShowHotNumbersCaption();
        }
        BuildHotTable(ShownHotTable());
        frmMainForm.hotRowCount = static_cast<std::int16_t>(LastRowOf(ShownHotTable()) + 1);
    }
    frmMainForm.grdHot.SetRowCount(frmMainForm.hotRowCount);
    if (isChosen) {
        frmMainForm.grdHot.ReadAgain();
        frmMainForm.grdHot.GoTo(0, frmMainForm.hotMarkColumn);
    }
}

void BuildHotTable(HotTable table) {
    if (const KeptTable& kept = Kept(table); kept.build != nullptr) {
        const platform::OnlyReads counting;
        kept.build();
    }
}

void RefreshHotTable(HotTable table) {
    if (const KeptTable& kept = Kept(table); kept.stale != nullptr && appState.*kept.stale) {
        BuildHotTable(table);
    }
}

std::int16_t LastRowOf(HotTable table) {
    return appState.*Kept(table).last;
}

std::span<const std::int32_t> CellsOfRow(HotTable table, int row) {
    const std::vector<std::int32_t>& noHitters = appState.noHitterTable;
    if (table == HotTable::NoHitters) {
        return 0 <= row && row < std::ssize(noHitters) ? std::span(noHitters).subspan(static_cast<std::size_t>(row), 1)
                                                       : std::span<const std::int32_t>();
    }
    const CountTable& rows = appState.*Kept(table).rows;
    return rows.Has(1, row) ? rows.Row(row).subspan(1) : std::span<const std::int32_t>();
}

}  // namespace ballhaven
