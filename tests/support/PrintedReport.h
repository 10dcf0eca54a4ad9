#pragma once

#include "support/MessageScript.h"
#include "support/PrinterRecord.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace ballhaven::support {

/// The text of a page file in tests/printing/golden: pages as a reader sees them, parted by lines of "-----".
[[nodiscard]] std::string GoldenText(const std::string& name);

/// A text in the form of `GoldenText`.
[[nodiscard]] std::string WithoutBlanksAtLineEnds(const std::string& text);

/// A printer that takes down what the reports print.
class PrintedReport : public ::testing::Test {
  protected:
    PrintedReport();

    /// Gives the game at hand its name in `gameRecord`, and says there whether its order matters.
    static void NameGame(const std::string& name, bool inOrder = false);

    /// What was printed, without the blanks at the ends of lines, in the form of `GoldenText`.
    [[nodiscard]] std::string Paper() const;

    /// What stands on the pages of the first job: the lines of each, without the empty ones.
    [[nodiscard]] std::vector<std::vector<std::string>> PageLines() const;
    [[nodiscard]] std::vector<std::string> LinesOfPage(std::size_t page) const { return PageLines().at(page); }

    /// Queues the box that tells of a printer that is not ready.
    void ExpectNotReady();

    PrinterRecord printer;
    std::vector<std::string> titles;  ///< of the devices that were opened
    MessageScript boxes;
};

}  // namespace ballhaven::support
