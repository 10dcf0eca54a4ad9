#include "printing/PlaySlipReport.h"

#include "platform/Services.h"
#include "platform/printing/Printer.h"
#include "plays/PlaySlips.h"
#include "printing/PageHead.h"
#include "printing/PickLabel.h"
#include "printing/PlaySort.h"
#include "printing/ReportPage.h"
#include "state/AppState.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace ballhaven {

namespace {

constexpr int labelColumn = 5;
constexpr std::array<int, picksPerPlay> pickColumns = {15, 20, 25, 30, 35, 40, 45, 50, 55, 60};
constexpr std::size_t seventh = 6;

bool IsBlank(std::int16_t cell) {
    return cell < 0;
}

/// Picks of a play, as the game has them.
struct PickCounts {
    int main;
    int bonus;  ///< 0 in a game without bonus picks
};

// QUIRK PLAY-REPORT-LAST-1: only the first cell of either list tells whether a play is in use. A play behind the last
// one with a pick there is not printed, whatever stands in its other cells. Habits rest on it.
std::int16_t LastUsedPlay(const PlayPicks& plays, bool hasBonus) {
    for (std::int16_t play = playCount; play >= 1; --play) {
        if (!IsBlank(plays(mainPicks, play, 1)) || (hasBonus && !IsBlank(plays(bonusPicks, play, 1)))) {
            return play;
        }
    }
    return 0;
}

using Cells = std::span<const std::int16_t>;

Cells FirstCells(Cells slots, int count) {
    return slots.first(static_cast<std::size_t>(std::clamp(count, 0, picksPerPlay)));
}

using PickTexts = std::array<std::string, picksPerPlay>;

// QUIRK PLAY-REPORT-SEVENTH-1: no bonus pick is ever printed in the seventh column, so a game of six main picks and one
// bonus pick prints no bonus. Readers of these pages know them so.
void AddBonusPicks(Cells cells, std::size_t position, PickTexts& texts) {
    for (const std::int16_t cell : cells) {
        if (!IsBlank(cell) && position < texts.size() && position != seventh) {
            texts[position] = pickLabel(cell);
        }
        ++position;
    }
}

ReportLine RowOf(int play, Cells mainCells, Cells bonusCells) {
    PickTexts texts;
    for (std::size_t position = 0; const std::int16_t cell : mainCells) {
        texts[position++] = IsBlank(cell) ? std::string() : pickLabel(cell);
    }
    AddBonusPicks(bonusCells, mainCells.size(), texts);
    std::string slip;
    std::string line;
    PlaySlipLabel(play, slip, line);
    ReportLine row = {{labelColumn, slip + line}};
    for (std::size_t position = 0; position < texts.size(); ++position) {
        row.push_back({pickColumns[position], texts[position]});
    }
    return row;
}

bool PrintPlays(ReportPage& page, const SectionHead& head, const PlayPicks& plays, int last, PickCounts counts) {
    for (int play = 1; play <= last; ++play) {
        const Cells mainCells = FirstCells(plays.Slots(mainPicks, play), counts.main);
        if (std::ranges::all_of(mainCells, IsBlank)) {
            continue;
        }
        page.PrintRow(RowOf(play, mainCells, FirstCells(plays.Slots(bonusPicks, play), counts.bonus)));
        if (!page.GoOn(head, play == last)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void playSlipReport() {
    const bool hasBonus = HasBonus(appState.gameType);
    const std::int16_t last = LastUsedPlay(appState.PlayTable, hasBonus);
    const PlayPicks plays = sortPlaysForReport(last);
    platform::Printer printer(platform::services.openPrinter(ReportTitle("Play Slips")));
    ReportPage page(printer);
    if (!page.Begin()) {
        return;
    }
    const SectionHead head{'_', "Play Slips", {{labelColumn, "Play"}, {pickColumns[0], "Picks"}}};
    page.PrintHead(head);
    if (last == 0) {
        page.PrintRemark("No Plays Found");
    }
    const PickCounts counts{appState.mainPickCount, hasBonus ? appState.bonusPickCount : 0};
    if (PrintPlays(page, head, plays, last, counts)) {
        printer.EndDoc();
    }
}

}  // namespace ballhaven
