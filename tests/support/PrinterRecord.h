#pragma once

#include "platform/printing/PrinterDevice.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ballhaven::support {

/// What a test's printer has got, and how it fails. Every character of its fonts is 120 twips wide and every line 240
/// high, so that its pages can be read as text. It must outlive the devices that write to it.
class PrinterRecord {
  public:
    /// A text on a page, as it was drawn.
    struct PrintedText {
        double x;
        double y;
        std::string text;
        platform::PrinterFont font;
    };

    /// A device for one job, which is in `jobs` when it has ended.
    [[nodiscard]] std::unique_ptr<platform::PrinterDevice> OpenDevice();

    /// The finished jobs as text, a line for each line of the paper down to the last one with a text: each text stands
    /// in its column. Pages are parted by a line of "-----", jobs by one of "=====".
    [[nodiscard]] std::string AsText() const;

    /// The devices fail in the operation of this number from now on, counted from 1 over beginnings, texts, new pages
    /// and endings, and in all that follow, with a number of error.
    void FailFrom(int operation, int number = platform::deviceNotReady);

    /// The same in that one operation only.
    void FailOnceAt(int operation, int number = platform::deviceNotReady);

    /// The width of this text cannot be had when it is asked for the next time but `asksBefore`, and then again.
    void FailWidthOnce(const std::string& text, int asksBefore = 0);

    using Page = std::vector<PrintedText>;
    using Job = std::vector<Page>;

    std::vector<Job> jobs;
    std::set<std::string> missingFonts;
    std::map<std::string, double> ownWidths;  ///< of texts whose characters are not 120 twips wide
    double pageWidth = 11520;                 ///< 8 inches
    double pageHeight = 15120;                ///< 10.5 inches

  private:
    class Device;

    /// Counts an operation; throws where it is to fail.
    void Count();

    /// Counts an ask for the width of a text; throws where it is not to be had.
    void CountWidth(const std::string& text);

    int operations = 0;
    int failing = 0;      ///< the first operation that fails, 0 for none
    int lastFailing = 0;  ///< the last one
    int errorNumber = 0;
    std::map<std::string, int> asksBeforeFailing;  ///< by the text whose width is to fail
};

}  // namespace ballhaven::support
