#pragma once

#include "platform/printing/Printer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ballhaven {

/// A text at a character column of the report's font, from 1.
struct ColumnText {
    int column;
    std::string text;
};

/// A line of a report: its texts from left to right.
using ReportLine = std::vector<ColumnText>;

/// What stands above the rows of a section, and again on each page on which they go on.
struct SectionHead {
    char rule;  ///< of the row above the title
    std::string title;
    ReportLine columns;
};

/// The page that a report is printing: it counts the lines, and goes on to the next page when it is full. The count is
/// the report's own, and differs from the lines on the paper. A result of false says that the printer has failed, of
/// which the user knows, and that the report has to stop; the other operations throw the printer's failure.
class ReportPage {
  public:
    explicit ReportPage(platform::Printer& reportPrinter) : printer(reportPrinter) {}

    /// Prints the head of the first page.
    [[nodiscard]] bool Begin();

    /// Goes on to the next page, and prints its head.
    [[nodiscard]] bool Turn();

    /// Whether a section can still begin on the page.
    [[nodiscard]] bool HasRoomForSection() const;

    void PrintHead(const SectionHead& head);

    /// Prints a row and an empty line.
    void PrintRow(const ReportLine& row);

    /// After a row: goes on to the next page, with the section's head, where this one is full and the row is not the
    /// section's last.
    [[nodiscard]] bool GoOn(const SectionHead& head, bool isLastRow);

    /// Prints a line that does not count.
    void PrintUncounted(const ReportLine& line);

    /// Prints what stands in place of rows.
    void PrintRemark(const std::string& remark);

    /// Parts a section from the next one.
    void EndSection();

    [[nodiscard]] std::int16_t LineCount() const { return lineCount; }

  private:
    bool PrintPageHead();
    void PrintLine(const ReportLine& line);

    platform::Printer& printer;
    std::int16_t lineCount = 0;
};

}  // namespace ballhaven
