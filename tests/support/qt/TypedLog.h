#pragma once

#include "support/HistoryLog.h"

#include <string>

namespace ballhaven::support {

/// The log of a game without a window, into which picks can be typed.
class TypedLogTest : public HistoryLogTest {
  protected:
    TypedLogTest();

    /// Lets the log take what is typed, as the program does.
    static void TakePicks();

    /// Types a pick into a column of the current row; whether it was accepted.
    static bool TypePick(int column, const std::string& text);
};

}  // namespace ballhaven::support
