#pragma once

#include <string>
#include <vector>

namespace ballhaven {

/// A question of the game dialog: the entries of its list, the selected one (-1 for none), and whether it is asked.
struct GameQuestion {
    std::vector<std::string> entries;
    int selected = -1;
    bool shown = true;

    bool operator==(const GameQuestion&) const = default;
};

/// All questions of the dialog but that for the name.
struct GameQuestions {
    GameQuestion type;
    GameQuestion mainCount;
    GameQuestion bonusCount;
    GameQuestion order;
    GameQuestion duplicates;
    GameQuestion mainLow;
    GameQuestion mainHigh;
    GameQuestion bonusLow;
    GameQuestion bonusHigh;

    bool operator==(const GameQuestions&) const = default;
};

/// The questions with the answers of a record, and the record with what had to be corrected for it.
struct AskedGame {
    GameQuestions questions;
    std::string record;
};

/// Asks about the game of a record. Whether the order matters is answered with "No" but for the dialog's opening. An
/// answer beyond the entries of its list is held at their ends.
[[nodiscard]] AskedGame AskAbout(std::string record, bool opening);

/// The question for one count of picks after the other one has changed: it offers what that leaves of ten picks. The
/// selected count stays, if it can; where none is selected, it is that of the record.
[[nodiscard]] GameQuestion CountBeside(int changedCount, int selectedEntry, int recordedCount);

/// The question for the highest number of a pool, with its selected entry, if it can stay.
[[nodiscard]] GameQuestion HighestNumber(bool duplicates, int picks, int low, int selectedEntry);

}  // namespace ballhaven
