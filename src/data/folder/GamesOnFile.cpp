#include "data/folder/GamesOnFile.h"

#include "data/folder/FolderFiles.h"
#include "data/folder/Refusal.h"
#include "data/folder/ShownText.h"
#include "history/DrawRecord.h"
#include "platform/files/CodePage.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace ballhaven::data {

namespace {

std::string InLowerCase(std::string text) {
    std::ranges::transform(text, text.begin(), modUTILS::LowerCase);
    return text;
}

/// The slot that a word of digits alone means; none for any other word.
std::optional<int> SlotOf(const std::string& word) {
    int slot = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, slot);
    return error == std::errc{} && stop == end ? std::optional(slot) : std::nullopt;
}

const GameOnFile& GameInSlot(const std::vector<GameOnFile>& games, int slot) {
    if (slot < 1 || slot > gameSlots) {
        throw Refusal("There is no slot " + std::to_string(slot) + ": slots go from 1 to " + std::to_string(gameSlots) +
                      ".");
    }
    return games[static_cast<std::size_t>(slot - 1)];
}

const GameOnFile& GameOfName(const std::vector<GameOnFile>& games, const std::string& word) {
    const std::string wanted = InLowerCase(platform::TextOfSystem(word));
    const auto bearsTheName = [&wanted](const GameOnFile& game) {
        return game.defined && InLowerCase(game.name) == wanted;
    };
    const auto found = std::ranges::find_if(games, bearsTheName);
    if (found == games.end()) {
        throw Refusal("There is no game \"" + word + "\"; \"ballhaven-data games\" lists them.");
    }
    if (std::ranges::count_if(games, bearsTheName) > 1) {
        throw Refusal("There are several games \"" + word + "\"; name the one you mean by the number of its slot.");
    }
    return *found;
}

/// What no game has, and rules out of a damaged record do; empty where they can be a game's.
std::string DamageOf(const GameRules& rules) {
    if (rules.gameType < 0 || rules.gameType > lastGameType) {
        return "no known kind";
    }
    if (rules.mainPickCount < 1) {
        return "no main pick in a draw";
    }
    return TotalPicksOf(rules) > mostPicksOfDraw ? "more than " + std::to_string(mostPicksOfDraw) + " picks in a draw"
                                                 : "";
}

}  // namespace

std::string GameOnFile::Title() const {
    return ShownWindows1252(name);
}

std::vector<GameOnFile> GamesOf(std::string_view tableContent) {
    std::vector<GameOnFile> games;
    for (int slot = 1; slot <= gameSlots; ++slot) {
        const auto begin = static_cast<std::size_t>(slot) * gameRecordLength;
        GameOnFile game;
        game.slot = slot;
        game.record = begin < tableContent.size()
                          ? InPresentForm(modUTILS::FixedWidth(tableContent.substr(begin), gameRecordLength))
                          : BuildDefaultGameRecord(slot, 0);
        game.name = modUTILS::Trimmed(GameName(game.record));
        game.defined = !CountsAsFree(game.record);
        game.rules = RulesOf(game.record);
        game.historySet = HistorySetOf(game.record);
        games.push_back(std::move(game));
    }
    return games;
}

std::vector<GameOnFile> ReadGames(const std::string& directory) {
    const std::optional<std::string> table = ReadFolderFile(directory, GameTableFile());
    if (!table) {
        throw Refusal(directory + " holds no " + GameTableFile().name +
                      ", so it is no folder of Ballhaven. Name the right one with --folder.");
    }
    return GamesOf(*table);
}

const GameOnFile& FindGame(const std::vector<GameOnFile>& games, const std::string& word) {
    const std::optional<int> slot = SlotOf(word);
    const GameOnFile& game = slot ? GameInSlot(games, *slot) : GameOfName(games, word);
    if (!game.defined) {
        throw Refusal("No game has been set up in slot " + std::to_string(game.slot) +
                      ". Set it up in Ballhaven first, with \"Add New Game\".");
    }
    return game;
}

const GameOnFile& FindPlayableGame(const std::vector<GameOnFile>& games, const std::string& word) {
    const GameOnFile& game = FindGame(games, word);
    if (const std::string damage = DamageOf(game.rules); !damage.empty()) {
        throw Refusal(game.Title() + " has " + damage +
                      ", so its record is damaged. Look at it with ballhaven-data check.");
    }
    return game;
}

}  // namespace ballhaven::data
