#include "data/folder/Picks.h"

#include "state/BoardGeometry.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

#include <algorithm>

namespace ballhaven::data {

int BonusSlots(const GameRules& rules) {
    return HasBonus(rules.gameType) ? rules.bonusPickCount : 0;
}

int PickOnCell(const GameRules& rules, PickColumn list, int cell) {
    const BoardGeometry board = BoardOf(rules.gameType);
    if (cell < 0 || (list == mainPicks && cell >= board.mainCells)) {
        return noPick;
    }
    const std::string text = TextOfPickCell(rules, list == mainPicks ? cell : board.firstBonusCell + cell);
    return text.empty() ? noPick : modUTILS::ValueOf16(text);
}

Picks PicksOfPlay(const GameRules& rules, const PlayPicks& plays, int play) {
    Picks picks;
    for (int slot = 1; slot <= std::min(rules.mainPickCount, picksPerPlay); ++slot) {
        picks.main.push_back(PickOnCell(rules, mainPicks, plays(mainPicks, play, slot)));
    }
    for (int slot = 1; slot <= BonusSlots(rules); ++slot) {
        picks.bonus.push_back(PickOnCell(rules, bonusPicks, plays(bonusPicks, play, slot)));
    }
    return picks;
}

Picks PicksOfDraw(const GameRules& rules, std::span<const std::int16_t> draw) {
    const auto mainCount = std::min(static_cast<std::size_t>(rules.mainPickCount), draw.size());
    const auto bonusCount = std::min(static_cast<std::size_t>(BonusSlots(rules)), draw.size() - mainCount);
    const auto main = draw.first(mainCount);
    const auto bonus = draw.subspan(mainCount, bonusCount);
    return {.main = {main.begin(), main.end()}, .bonus = {bonus.begin(), bonus.end()}};
}

bool HasNoMainPick(const Picks& picks) {
    return std::ranges::all_of(picks.main, [](int pick) { return pick == noPick; });
}

bool HasAllMainPicks(const GameRules& rules, const Picks& picks) {
    std::vector<int> sorted = picks.main;
    std::ranges::sort(sorted);
    return !sorted.empty() && std::ssize(sorted) == rules.mainPickCount &&
           std::ranges::find(sorted, noPick) == sorted.end() &&
           (rules.duplicatesAllowed || std::ranges::adjacent_find(sorted) == sorted.end());
}

std::string PickTexts(const GameRules& rules, std::span<const int> picks) {
    std::string texts;
    for (const int pick : picks) {
        texts += texts.empty() ? "" : " ";
        texts += pick == noPick ? "-" : PickToText(pick, rules.gameType);
    }
    return texts;
}

}  // namespace ballhaven::data
