#include "data/GamesCommand.h"

#include "data/folder/CountText.h"
#include "data/folder/DrawsOnFile.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/IsoDate.h"
#include "data/folder/PlaysOnFile.h"
#include "plays/PickSlots.h"

#include <algorithm>
#include <iomanip>

namespace ballhaven::data {

namespace {

constexpr const char* kinds[] = {
    "numbers", "numbers, bonus from the same numbers", "numbers, bonus from numbers of its own",
    "cards",   "cards, bonus from the same cards",     "cards, bonus from cards of its own"};

const char* KindOf(const GameRules& rules) {
    const bool known = rules.gameType >= 0 && rules.gameType < static_cast<int>(std::size(kinds));
    return known ? kinds[rules.gameType] : "of no known kind";
}

std::string PicksText(int count, int low, int high, bool cards) {
    return std::to_string(count) + " of " + (cards ? "52" : std::to_string(low) + " to " + std::to_string(high));
}

std::string RulesText(const GameRules& rules) {
    const bool cards = IsCardGame(rules.gameType);
    std::string text = PicksText(rules.mainPickCount, rules.mainLow, rules.mainHigh, cards);
    if (HasBonus(rules.gameType)) {
        text += " and " + PicksText(rules.bonusPickCount, rules.bonusLow, rules.bonusHigh, cards);
    }
    if (rules.duplicatesAllowed) {
        text += ", duplicates allowed";
    }
    if (rules.orderMatters) {
        text += ", order matters";
    }
    return text;
}

bool IsInUse(const PlayPicks& plays, int play) {
    const auto isPick = [](std::int16_t pick) { return pick != emptySlot; };
    return std::ranges::any_of(plays.Slots(mainPicks, play), isPick) ||
           std::ranges::any_of(plays.Slots(bonusPicks, play), isPick);
}

int PlaysInUse(const PlayPicks& plays) {
    int count = 0;
    for (int play = 1; play <= playCount; ++play) {
        count += IsInUse(plays, play) ? 1 : 0;
    }
    return count;
}

std::string DrawsText(const std::vector<DrawOnFile>& draws) {
    if (draws.empty()) {
        return "no draws";
    }
    const auto [first, last] = std::ranges::minmax(draws, {}, &DrawOnFile::date);
    return CountText(std::ssize(draws), "draw") + ", " + IsoDate(first.date) + " to " + IsoDate(last.date);
}

}  // namespace

void ListGames(const WorkFolder& folder, const Console& console) {
    for (const GameOnFile& game : ReadGames(folder.Path())) {
        console.out << std::setw(2) << game.slot << "  ";
        if (!game.defined) {
            console.out << "(no game)\n";
            continue;
        }
        console.out << game.Title() << ": " << KindOf(game.rules) << ", " << RulesText(game.rules) << "; "
                    << DrawsText(ReadDraws(folder.Path(), game).draws) << "; "
                    << PlaysInUse(ReadPlays(folder.Path(), game.slot)) << " plays in use\n";
    }
}

}  // namespace ballhaven::data
