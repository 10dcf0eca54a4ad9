#pragma once

namespace ballhaven {

inline constexpr int lastGameType = 5;
inline constexpr int mostPicksOfDraw = 10;  ///< main and bonus picks together

/// The rules of a game: what is drawn, how many of it, and how the order counts.
struct GameRules {
    int gameType = 0;  ///< 0 to `lastGameType`
    int mainPickCount = 0;
    int bonusPickCount = 0;
    int mainLow = 0;
    int mainHigh = 0;
    int bonusLow = 0;
    int bonusHigh = 0;
    bool duplicatesAllowed = false;
    bool orderMatters = false;

    bool operator==(const GameRules&) const = default;
};

/// Columns of picks in a draw, at least 1.
[[nodiscard]] int TotalPicksOf(const GameRules& rules);

/// The rules of the game that the program works on.
[[nodiscard]] GameRules CurrentRules();

/// Makes rules those of the game that the program works on: fills its game variables, `totalPicks` among them.
void TakeRules(const GameRules& rules);

}  // namespace ballhaven
