#pragma once

#include "state/Table.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ballhaven {

inline constexpr int gameSlots = 20;
inline constexpr int historyRows = 1000;

/// The history sets that can be chosen: 10, 20, and so on to 1000, which stands for all draws.
inline constexpr int smallestHistorySet = 10;
inline constexpr int largestHistorySet = 1000;
inline constexpr int historySetStep = 10;

inline constexpr int playCount = 5000;
inline constexpr int picksPerPlay = 10;
inline constexpr int chosenPicks = 100;

/// What the game dialog is open for.
enum class GameDialogMode { None, Adding, Altering };

/// Which colours the hi-lited numbers of log and hot table have: none, those of the boxes as the user filled them, or
/// those of a drawing.
enum class ColorMode { None, Boxes, Drawing };

/// Which of the two lists of picks: of a draw's play, or of the chosen picks.
enum PickColumn : int { mainPicks = 0, bonusPicks = 1 };

/// The plays of a game, addressed by list (`mainPicks`, `bonusPicks`), play (1 to 5000; 0 is never used) and slot (1 to
/// 10, the picks as cell numbers, -1 for an empty slot). Slot 0 of the main list is the way in which the play was made.
class PlayPicks {
  public:
    std::int16_t& operator()(int pickColumn, int play, int slot) { return cells[Index(pickColumn, play, slot)]; }
    std::int16_t operator()(int pickColumn, int play, int slot) const { return cells[Index(pickColumn, play, slot)]; }

    /// Slots 0 to 10 of a play's list, and those of its picks alone, 1 to 10.
    using Entries = std::span<std::int16_t, picksPerPlay + 1>;
    [[nodiscard]] Entries EntriesOf(int pickColumn, int play) {
        return Entries(&(*this)(pickColumn, play, 0), Width());
    }
    [[nodiscard]] std::span<std::int16_t> Slots(int pickColumn, int play) {
        return EntriesOf(pickColumn, play).subspan(1);
    }
    [[nodiscard]] std::span<const std::int16_t> Slots(int pickColumn, int play) const {
        return {&cells[Index(pickColumn, play, 1)], picksPerPlay};
    }

    bool operator==(const PlayPicks&) const = default;

  private:
    [[nodiscard]] static constexpr std::size_t Width() { return picksPerPlay + 1; }
    [[nodiscard]] static std::size_t Index(int pickColumn, int play, int slot);

    std::vector<std::int16_t> cells = std::vector<std::int16_t>(2UL * (playCount + 1) * (picksPerPlay + 1));
};

/// The chosen picks of a game, addressed by list (`mainPicks`, `bonusPicks`) and slot (1 to 100, the picks as cell
/// numbers in the order of the choice, -1 for an empty slot). Slot 0 of the main list is the way in which plays are to
/// be made of them; that of the bonus list is not used. None are chosen at first.
class ChosenPicks {
  public:
    ChosenPicks();

    std::int16_t& operator()(int pickColumn, int slot) { return cells[Index(pickColumn, slot)]; }
    std::int16_t operator()(int pickColumn, int slot) const { return cells[Index(pickColumn, slot)]; }

    /// The slots of a list's picks, 1 to 100.
    [[nodiscard]] std::span<std::int16_t> Slots(int pickColumn) { return {&(*this)(pickColumn, 1), chosenPicks}; }
    [[nodiscard]] std::span<const std::int16_t> Slots(int pickColumn) const {
        return {&cells[Index(pickColumn, 1)], chosenPicks};
    }

    bool operator==(const ChosenPicks&) const = default;

  private:
    [[nodiscard]] static std::size_t Index(int pickColumn, int slot);

    std::array<std::int16_t, 2 * (chosenPicks + 1)> cells{};
};

/// All that windows and routines share. One per process; nothing of it outlives the process except what is written to
/// the data files. Integers start at 0, tables without rows.
struct AppState {
    // Paths and system
    std::string programDirectory;              ///< of the program and its data files, with a separator at its end
    std::string windowsDirectory;              ///< of the system's settings, with a separator at its end
    std::string shortDateFormat;               ///< such as "m/d/y"
    std::array<std::int16_t, 13> monthDays{};  ///< 1 to 12, February 28; filled on each use
    std::int16_t dateSerial = 0;               ///< left by the last `DateToSerial`
    std::int16_t dateWeekday = 0;              ///< likewise: 1 Monday to 7 Sunday

    // Game configuration
    std::string systemRecord;
    std::string gameRecord;        ///< with every change that is not stored yet
    std::int16_t currentGame = 0;  ///< slot 1 to 20; 0 until the first load
    std::int16_t gameType = 0;     ///< 0 to 5
    std::int16_t mainPickCount = 0;
    std::int16_t bonusPickCount = 0;  ///< as the record holds it
    std::int16_t totalPicks = 0;      ///< columns of picks in a draw, at least 1
    std::int16_t mainLow = 0;
    std::int16_t mainHigh = 0;
    std::int16_t bonusLow = 0;
    std::int16_t bonusHigh = 0;
    bool duplicatesAllowed = false;
    bool orderMatters = false;
    std::int16_t historySetSize = 0;    ///< `largestHistorySet` stands for all
    std::int16_t historySortOrder = 0;  ///< 0 the newest draw first, else the oldest
    std::int16_t slipColumns = 0;       ///< of a pick grid: 9 in a number game, 6 in a card game
    GameDialogMode gameDialogMode = GameDialogMode::None;
    std::int16_t gameDialogSlot = 0;

    // Draw history. Column 0 is the date serial, columns 1 to `totalPicks` the picks, -1 for a blank cell.
    Table HistoryTable;
    std::int16_t historyLast = 0;  ///< highest row counted as occupied, -1 for none
    Table historyView;             ///< the chosen set in display order
    std::int16_t historyViewLast = 0;
    bool historyDirty = false;
    std::int16_t nextLogDate = 0;     ///< serial that the calendar last offered for a new record
    std::int32_t pendingLogDate = 0;  ///< -1 while a new record's date is chosen, a serial while it waits to be sorted
    std::string logDateText;          ///< of the cell whose date is being changed

    // Statistics
    CountTable hotNumberTable;  ///< columns 1 the pick, 2 the hits
    std::int16_t hotNumberLast = 0;
    CountTable hotPairTable;  ///< columns 1 and 2 the picks, 3 the hits
    std::int16_t hotPairLast = 0;
    CountTable pairedOnceTable;  ///< columns 1 and 2 the picks
    std::int16_t pairedOnceLast = 0;
    CountTable repeaterTable;  ///< columns 1 the pick, 2 the repeats
    std::int16_t repeaterLast = 0;
    std::vector<std::int32_t> noHitterTable;
    std::int16_t noHitterLast = 0;
    bool hotPairStale = false;
    bool pairedOnceStale = false;
    bool repeaterStale = false;
    bool noHitterStale = false;
    std::int16_t hotTableChoice = 0;  ///< 1 to 5, the table that the hot selector shows
    std::int16_t hotSortChoice = 0;   ///< 0 main picks, 1 bonus picks, 2 all

    // Plays and windows
    PlayPicks PlayTable;
    ChosenPicks ShuffleTable;
    std::int16_t currentPlay = 0;
    std::int16_t currentSlip = 0;
    bool playsDirty = false;
    bool hiLiteWinners = false;
    ColorMode colorMode = ColorMode::None;
    bool playsWindowOpen = false;
    bool shuffleWindowOpen = false;
    std::int16_t helpTopic = 0;
};

extern AppState appState;

/// Whether a game of this kind is played with cards.
[[nodiscard]] inline bool IsCardGame(int gameType) {
    return gameType > 2;
}

/// Whether a game of this kind has bonus picks.
[[nodiscard]] inline bool HasBonus(int gameType) {
    return gameType != 0 && gameType != 3;
}

/// Whether the bonus picks of a game of this kind come from the main picks' numbers or cards.
[[nodiscard]] constexpr bool BonusComesFromMainPool(int gameType) {
    return gameType == 1 || gameType == 4;
}

/// Whether they come from numbers or cards of their own, so that they can repeat a main pick.
[[nodiscard]] constexpr bool BonusComesFromOwnPool(int gameType) {
    return gameType == 2 || gameType == 5;
}

/// Marks every table but Hot Numbers as one to be rebuilt before it is next shown or printed.
void MarkHotTablesStale();

}  // namespace ballhaven
