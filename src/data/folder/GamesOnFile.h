#pragma once

#include "state/GameRules.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::data {

/// A slot of the table of games.
struct GameOnFile {
    int slot = 0;  ///< 1 to 20
    std::string record;
    std::string name;      ///< without the blanks behind, in Windows-1252
    bool defined = false;  ///< a game has been set up here
    GameRules rules;
    std::int16_t historySet = 0;  ///< 1000 stands for all

    /// The name in UTF-8, as a terminal can show it.
    [[nodiscard]] std::string Title() const;
};

/// The twenty games of a table's content, records of the older form brought to the present one. Records that the
/// content lacks are those of unused slots.
[[nodiscard]] std::vector<GameOnFile> GamesOf(std::string_view tableContent);

/// Those of a folder. Throws Refusal where it has no table of games, or none that can be read.
[[nodiscard]] std::vector<GameOnFile> ReadGames(const std::string& directory);

/// The game that a word of the command line means: the number of its slot, or its name in UTF-8, the case of letters
/// left aside. Throws Refusal where there is none, where there are several, or where no game has been set up in the
/// slot.
[[nodiscard]] const GameOnFile& FindGame(const std::vector<GameOnFile>& games, const std::string& word);

/// The same for whoever reads draws or plays by the game's rules. Throws Refusal also where these are none that a game
/// can have, so that its record must be damaged.
[[nodiscard]] const GameOnFile& FindPlayableGame(const std::vector<GameOnFile>& games, const std::string& word);

}  // namespace ballhaven::data
