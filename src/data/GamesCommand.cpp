#include "data/GamesCommand.h"

#include "data/folder/CountText.h"
#include "data/folder/DrawsOnFile.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/IsoDate.h"
#include "data/folder/PlaysOnFile.h"
#include "data/folder/Refusal.h"
#include "plays/PickSlots.h"

#include <algorithm>
#include <iomanip>
#include <string>
#include <utility>

namespace ballhaven::data {

namespace {

constexpr const char* kinds[] = {
    "numbers", "numbers, bonus from the same numbers", "numbers, bonus from numbers of its own",
    "cards",   "cards, bonus from the same cards",     "cards, bonus from cards of its own"};

static_assert(std::size(kinds) == lastGameType + 1);

const char* KindOf(const GameRules& rules) {
    const bool known = rules.gameType >= 0 && rules.gameType <= lastGameType;
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

/// Lists games as far as their files can be read.
class GameList {
  public:
    GameList(std::string folder, const Console& output) : directory(std::move(folder)), console(output) {}

    void Tell(const GameOnFile& game) {
        console.out << std::setw(2) << game.slot << "  ";
        if (!game.defined) {
            console.out << "(no game)\n";
            return;
        }
        const std::string draws =
            TextOr("draws that cannot be read", [&] { return DrawsText(ReadDraws(directory, game).draws); });
        const std::string plays = TextOr("plays that cannot be read", [&] {
            return std::to_string(PlaysInUse(ReadPlays(directory, game.slot))) + " plays in use";
        });
        console.out << game.Title() << ": " << KindOf(game.rules) << ", " << RulesText(game.rules) << "; " << draws
                    << "; " << plays << '\n';
    }

    [[nodiscard]] int UnreadFiles() const { return unread; }

  private:
    /// What `read` tells; where its file cannot be read, other words, and the reason in the notes.
    template <typename Read>
    std::string TextOr(const char* otherWords, const Read& read) {
        try {
            return read();
        } catch (const Refusal& refusal) {
            console.notes << refusal.what() << '\n';
            ++unread;
            return otherWords;
        }
    }

    std::string directory;
    const Console& console;
    int unread = 0;
};

}  // namespace

void ListGames(const WorkFolder& folder, const Console& console) {
    GameList list(folder.Path(), console);
    for (const GameOnFile& game : ReadGames(folder.Path())) {
        list.Tell(game);
    }
    if (list.UnreadFiles() > 0) {
        throw Refusal(CountText(list.UnreadFiles(), "file") + " could not be read.");
    }
}

}  // namespace ballhaven::data
