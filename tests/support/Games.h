#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ballhaven::support {

enum class BonusPool { Same, Separate };

/// The configuration of a game for a test, in the words in which a person would tell it:
/// `SetUpGame(NumberGame().Picks(6).From(1).To(49).Bonus(1, BonusPool::Separate).BonusTo(10))`.
class Game {
  public:
    /// Main picks of a draw; 6 unless it is said.
    Game& Picks(int count);

    /// Lowest and highest main pick, 1 and 49 unless it is said. A card game has 1 and 52, whatever is said.
    Game& From(int lowest);
    Game& To(int highest);

    /// Bonus picks of a draw, from the main picks' pool or from their own.
    Game& Bonus(int count, BonusPool pool);

    /// Limits of a separate pool of bonus numbers, 1 and 49 unless it is said.
    Game& BonusFrom(int lowest);
    Game& BonusTo(int highest);

    /// A number can repeat within one draw, or the order of a draw matters.
    Game& WithDuplicates();
    Game& InOrder();

    /// Last N games, 1000 unless it is said.
    Game& HistorySet(int size);
    Game& NewestFirst();
    Game& OldestFirst();

    /// Slot of the game, 1 unless it is said.
    Game& InSlot(int gameSlot);

  private:
    friend Game NumberGame();
    friend Game CardGame();
    friend void SetUpGame(const Game& game);

    explicit Game(bool withCards) : cards(withCards) {}
    [[nodiscard]] int Type() const;

    bool cards;
    bool hasBonus = false;
    BonusPool bonusPool = BonusPool::Same;
    int picks = 6;
    int bonusPicks = 0;
    int low = 1;
    int high = 49;
    int bonusLow = 1;
    int bonusHigh = 49;
    bool duplicates = false;
    bool order = false;
    int historySet = 1000;
    int sortOrder = 1;
    int slot = 1;
};

[[nodiscard]] Game NumberGame();
[[nodiscard]] Game CardGame();

/// A draw: its date as month/day/year, and its picks, -1 for an empty cell. Columns that are not given are empty.
struct Draw {
    std::string date;
    std::vector<int> picks;
};

/// Puts `appState` back to what it is when the process starts, with "m/d/y" as `shortDateFormat`.
void ResetState();

/// Record 1 of a game table that marks its folder as mended.
[[nodiscard]] std::string MendedSystemRecord();

/// Marks the folder at hand as mended, in `appState` alone.
void MendFolder();

/// Puts the configuration into the game variables of `appState` (as a load of the game would leave them; the records'
/// texts stay empty), with tables of the game's size that hold no draws, no plays and no chosen picks.
void SetUpGame(const Game& game);

/// Puts the draws into the first rows of `HistoryTable`, after a `SetUpGame`. The view is the test's to build.
void SetUpDraws(const std::vector<Draw>& draws);

/// Puts picks into the slots of a play from 1 on, as cell numbers, after a `SetUpGame`; the other slots become empty.
void SetUpPlay(int play, const std::vector<int>& mainCells, const std::vector<int>& bonusCells = {});

/// Days from 1 January 1984 to a date given as month/day/year, by the standard library's calendar.
[[nodiscard]] std::int16_t SerialOf(const std::string& date);

}  // namespace ballhaven::support
