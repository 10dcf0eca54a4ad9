#include "statistics/HotTables.h"

#include "state/AppState.h"
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

}  // namespace

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
