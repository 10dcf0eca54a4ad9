#include "history/PickEntry.h"

#include "state/AppState.h"
#include "state/DrawCells.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

/// Puts a pick into the column of every row from 0 to `last` that has the date.
void StoreInTable(Table& table, int last, std::int16_t date, int column, std::int16_t pick) {
    for (int row = 0; row <= last; ++row) {
        if (table.Has(column, row) && table(dateColumn, row) == date) {
            table(column, row) = pick;
        }
    }
}

}  // namespace

std::optional<std::int64_t> TypedPick(std::string_view text) {
    return modUTILS::Trimmed(text).empty() ? std::nullopt : std::optional(modUTILS::ValueOf(text));
}

bool IsPickInRange(const GameRules& rules, int column, std::optional<std::int64_t> value) {
    const bool isMain = column <= rules.mainPickCount;
    if (column == dateColumn || IsCardGame(rules.gameType) || (!isMain && rules.gameType == 0) || !value) {
        return true;
    }
    return isMain ? rules.mainLow <= *value && *value <= rules.mainHigh
                  : rules.bonusLow <= *value && *value <= rules.bonusHigh;
}

void StorePick(std::int16_t date, int column, std::int16_t pick) {
    StoreInTable(appState.historyView, appState.historyViewLast, date, column, pick);
    StoreInTable(appState.HistoryTable, appState.historyLast, date, column, pick);
    MarkHotTablesStale();
}

}  // namespace ballhaven
