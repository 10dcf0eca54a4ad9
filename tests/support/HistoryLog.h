#pragma once

#include "support/Games.h"
#include "support/MessageScript.h"
#include "support/RecordBytes.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace ballhaven::support {

extern const RecordFormat historyFileFormat;

/// The bytes of a history file that holds these draws, of which blank picks are -1.
[[nodiscard]] std::string HistoryFileOf(const std::vector<Draw>& draws);

/// Draws of three picks, one a day from 1 January 1990 on: the first has 1, 2, 3, the second 2, 3, 4, and so on.
[[nodiscard]] std::vector<Draw> DailyDraws(int count);

/// The log of a game without a window, with its file in a directory of its own. The current date is 5 March 1990.
class HistoryLogTest : public ::testing::Test {
  protected:
    HistoryLogTest();

    /// Puts the program back to its start, before a game is current; the files stay.
    void StartAgain() const;

    /// Stores draws as those of a game, and makes the game current.
    void ShowLog(const Game& game, const std::vector<Draw>& draws) const;

    /// Makes the draw of a date the current row.
    static void GoToDate(const std::string& date);

    /// The dates of the log's rows, and the current row as the log shows it.
    [[nodiscard]] static std::vector<std::string> ShownDates();
    [[nodiscard]] static std::vector<std::string> CurrentRow();

    /// The draws of `HistoryTable`, as the file would hold them.
    [[nodiscard]] static std::string TableAsFile();

    /// Says where the game's file differs from one with these draws.
    [[nodiscard]] ::testing::AssertionResult FileHolds(const std::vector<Draw>& draws) const;

    TemporaryDirectory directory;
    MessageScript boxes;
};

}  // namespace ballhaven::support
