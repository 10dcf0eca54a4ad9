#include "help/HelpPrinting.h"

#include "platform/Services.h"
#include "support/PrintedReport.h"
#include "support/PrinterRecord.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using std::chrono::year;
using support::PrinterRecord;

// The recording printer has room for 84 characters between margins of 6, and for 52 lines, from the seventh to the 58th
// of the paper; the footer is on the 61st.

class HelpPrinting : public testing::Test {
  protected:
    HelpPrinting() {
        platform::services.openPrinter = [this](const std::string& title) {
            jobTitle = title;
            return record.OpenDevice();
        };
        platform::services.today = [] { return year{2004} / 2 / 4; };
        platform::services.shortDatePattern = [](const std::string&) { return std::string("M/d/yyyy"); };
    }

    /// The lines of a page with its margins: what stands on a line that is not named is nothing.
    struct Line {
        int number;  ///< from 0
        std::string text;
    };
    static std::string Paper(const std::vector<Line>& lines) {
        std::string text;
        int next = 0;
        for (const Line& line : lines) {
            text += std::string(static_cast<std::size_t>(line.number - next), '\n') + line.text + "\n";
            next = line.number + 1;
        }
        return text;
    }

    /// The footer of the page of a number, of one digit.
    static std::string Footer(int page) {
        return "      2/4/2004" + std::string(70, ' ') + "Page " + std::to_string(page);
    }

    /// A page with the heading "Title".
    static std::string PaperWithHeading(int page, std::vector<Line> lines) {
        lines.insert(lines.begin(), {3, std::string(46, ' ') + "Title"});
        lines.push_back({60, Footer(page)});
        return Paper(lines);
    }

    /// So many lines of one letter each.
    static std::string LinesOfText(int count) {
        std::string text;
        for (int line = 0; line < count; ++line) {
            text += "x\r\n";
        }
        return text;
    }

    static std::vector<Line> LinesOfPaper(int count) {
        std::vector<Line> lines;
        for (int line = 0; line < count; ++line) {
            lines.push_back({6 + line, "      x"});
        }
        return lines;
    }

    /// What has been printed, in its order: texts parted by blanks and pages by bars.
    [[nodiscard]] std::string TextsOfPages() const {
        std::string all;
        for (const PrinterRecord::Job& job : record.jobs) {
            for (const PrinterRecord::Page& page : job) {
                all += all.empty() ? "" : " |";
                for (const PrinterRecord::PrintedText& each : page) {
                    all += (all.empty() ? "" : " ") + each.text;
                }
            }
        }
        return all;
    }

    [[nodiscard]] PrinterRecord::PrintedText Drawn(const std::string& text) const {
        for (const PrinterRecord::PrintedText& each : record.jobs.at(0).at(0)) {
            if (each.text == text) {
                return each;
            }
        }
        ADD_FAILURE() << "not drawn: " << text;
        return {};
    }

    PrinterRecord record;
    std::string jobTitle;
};

using QuirkHelpLastPage1 = HelpPrinting;
using QuirkHelpPrintSilent1 = HelpPrinting;

TEST_F(HelpPrinting, PrintsHeadingTextAndFooterAsOneJob) {
    printHelpText("Title", " Wheels:\r\n A Full Wheel\r\n\r\n B\r\n");

    EXPECT_EQ(record.jobs.size(), 1U);
    EXPECT_EQ(jobTitle, "Title");
    EXPECT_EQ(record.AsText(),
              PaperWithHeading(1, {{6, "       Wheels:"}, {7, "       A Full Wheel"}, {9, "       B"}}));
}

TEST_F(HelpPrinting, TheHeadingIsCentredInTheTopInchAndTheFooterHalfAnInchAboveTheEdge) {
    printHelpText("Title", "word");

    const auto heading = Drawn("Title");
    EXPECT_DOUBLE_EQ(heading.x, (11520 - 5 * 120) / 2.0);
    EXPECT_DOUBLE_EQ(heading.y, (1440 - 240) / 2.0);
    const auto date = Drawn("2/4/2004");
    EXPECT_DOUBLE_EQ(date.x, 720);
    EXPECT_DOUBLE_EQ(date.y, 15120 - 720);
    const auto number = Drawn("Page 1");
    EXPECT_DOUBLE_EQ(number.x, 11520 - (6 * 120 + 720));
    EXPECT_DOUBLE_EQ(number.y, 15120 - 720);
    const auto word = Drawn("word");
    EXPECT_DOUBLE_EQ(word.x, 720);
    EXPECT_DOUBLE_EQ(word.y, 1440);
}

TEST_F(HelpPrinting, EverythingIsInTimesNewRomanOfTenPoints) {
    printHelpText("Title", "some words");

    for (const PrinterRecord::PrintedText& each : record.jobs.at(0).at(0)) {
        EXPECT_EQ(each.font.name, "Times New Roman") << each.text;
        EXPECT_EQ(each.font.size, 10) << each.text;
    }
}

TEST_F(HelpPrinting, AFontThatIsMissingIsPassedOver) {
    record.missingFonts = {"Times New Roman"};
    printHelpText("Title", "word");

    EXPECT_EQ(Drawn("word").font.name, "");
    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      word"}}));
}

TEST_F(HelpPrinting, AWordThatWouldPassTheRightMarginGoesToTheNextLine) {
    const std::string wide(81, 'w');
    printHelpText("Title", wide + " end " + wide + " ends");

    EXPECT_EQ(record.AsText(),
              PaperWithHeading(
                  1, {{6, "      " + wide + " "}, {7, "      end "}, {8, "      " + wide + " "}, {9, "      ends"}}));
}

TEST_F(HelpPrinting, AWordThatJustReachesTheRightMarginStaysOnTheLine) {
    const std::string wide(80, 'w');
    printHelpText("Title", wide + " end");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      " + wide + " end"}}));
}

TEST_F(HelpPrinting, AWordWiderThanThePageHasALineOfItsOwnAndIsNotSplit) {
    const std::string wide(100, 'w');
    printHelpText("Title", "before " + wide + " after");

    EXPECT_EQ(record.AsText(),
              PaperWithHeading(1, {{6, "      before "}, {7, "      " + wide + " "}, {8, "      after"}}));
}

TEST_F(HelpPrinting, ARowOfHyphensIsOneWord) {
    const std::string row(102, '-');
    printHelpText("Title", " before\r\n" + row + "\r\n after\r\n");

    // The row is too wide for this paper, where it has gone to the next line before anything stood on its own.
    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "       before"}, {8, "      " + row}, {9, "       after"}}));
}

TEST_F(HelpPrinting, LettersBeyondAsciiBelongToWords) {
    const std::string wide(80, '\xE4');
    printHelpText("Title", wide + " \xFC\xDF\xFF\x80 end");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      " + wide + " "}, {7, "      \xFC\xDF\xFF\x80 end"}}));
}

TEST_F(HelpPrinting, BlanksArePrintedOneByOneBeyondTheMarginToo) {
    printHelpText("Title", "a   b" + std::string(90, ' ') + "c");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      a   b" + std::string(90, ' ')}, {7, "      c"}}));
}

TEST_F(HelpPrinting, CarriageReturnsAndOtherControlsPrintNothing) {
    printHelpText("Title", "a\r\x01\x1F\x0B\x62\rc\n\rd");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      abc"}, {7, "      d"}}));
}

TEST_F(HelpPrinting, ATabGoesToTheNextMultipleOfTenDigits) {
    printHelpText("Title", "abc\tx\n\ty\n1234567890\tz\n123456789\tz");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      abc       x"},
                                                    {7, "                y"},
                                                    {8, "      1234567890          z"},
                                                    {9, "      123456789 z"}}));
}

TEST_F(HelpPrinting, ATabReckonsWithTheRoundedPlaceAndTiesGoToTheEvenNumber) {
    record.ownWidths = {{"half", 60}, {"much", 9 * 120 + 61}, {"tie", 9 * 120 + 60}, {"less", 8 * 120 + 60}};
    printHelpText("Title", "half\ta\nmuch\tb\ntie\tc\nless\td");

    EXPECT_DOUBLE_EQ(Drawn("a").x, 720 + 10 * 120) << "0.5 is 0";
    EXPECT_DOUBLE_EQ(Drawn("b").x, 720 + 20 * 120) << "9.51 is 10, which moves on";
    EXPECT_DOUBLE_EQ(Drawn("c").x, 720 + 20 * 120) << "9.5 is 10";
    EXPECT_DOUBLE_EQ(Drawn("d").x, 720 + 10 * 120) << "8.5 is 8";
}

TEST_F(HelpPrinting, ATabWhosePlaceCannotBeMeasuredIsTheFirstOne) {
    record.FailWidthOnce("0");
    printHelpText("Title", "twelve signs\tx");

    EXPECT_DOUBLE_EQ(Drawn("x").x, 720 + 10 * 120);
}

TEST_F(HelpPrinting, ATabToWhichTheWayCannotBeMeasuredStaysWhereItIs) {
    record.FailWidthOnce("0", 1);
    printHelpText("Title", "twelve signs\tx\ty");

    EXPECT_DOUBLE_EQ(Drawn("x").x, 720 + 12 * 120);
    EXPECT_DOUBLE_EQ(Drawn("y").x, 720 + 20 * 120);
}

TEST_F(HelpPrinting, ATabOfDigitsWithoutWidthIsTheLeftMargin) {
    record.ownWidths = {{"0", 0}};
    printHelpText("Title", "some\tx");

    EXPECT_DOUBLE_EQ(Drawn("x").x, 720);
}

TEST_F(HelpPrinting, AWordThatCannotBeMeasuredHasTheNextLine) {
    record.FailWidthOnce("b");
    printHelpText("Title", "a b c");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {{6, "      a "}, {7, "      b c"}}));
}

TEST_F(HelpPrinting, AHeadingThatCannotBeMeasuredBeginsAtTheLeftEdge) {
    record.FailWidthOnce("Title");
    printHelpText("Title", "word");

    EXPECT_EQ(record.AsText(), Paper({{3, "Title"}, {6, "      word"}, {60, Footer(1)}}));
}

TEST_F(HelpPrinting, ItsPagesReadAsTheText) {
    std::string text =
        " The harbour\r\n\r\n"
        "A harbour of numbers: the boats of the last hundred drawings lie at their moorings, each with "
        "its hits on the bow, and whoever walks along the quay sees which of them has been out most "
        "often.\r\n\r\n"
        "\tNumber\tHits\r\n\t7\t19\r\n\t1234567890\t18\r\n\r\n"
        " before the row\r\n" +
        std::string(102, '-') + "\r\n after the row\r\n\r\n";
    for (int pier = 1; pier <= 45; ++pier) {
        text += " Pier " + std::to_string(pier) + (pier < 45 ? "\r\n" : "");
    }
    printHelpText("Harbours", text);

    EXPECT_EQ(support::WithoutBlanksAtLineEnds(record.AsText()), support::GoldenText("help.txt"));
}

TEST_F(HelpPrinting, TheLineBelowTheLastOneGoesToAPageOfItsOwn) {
    printHelpText("Title", LinesOfText(52) + "y");

    EXPECT_EQ(record.AsText(),
              PaperWithHeading(1, LinesOfPaper(52)) + "-----\n" + PaperWithHeading(2, {{6, "      y"}}));
}

TEST_F(HelpPrinting, AWordThatIsTooWideForTheLastLineGoesToTheNextPage) {
    const std::string wide(80, 'w');
    printHelpText("Title", LinesOfText(51) + wide + " word");

    auto first = LinesOfPaper(51);
    first.push_back({57, "      " + wide + " "});
    EXPECT_EQ(record.AsText(), PaperWithHeading(1, first) + "-----\n" + PaperWithHeading(2, {{6, "      word"}}));
}

TEST_F(HelpPrinting, ATextThatFillsThePageWithoutALineBreakAtItsEndHasOnePage) {
    printHelpText("Title", LinesOfText(51) + "x");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, LinesOfPaper(52)));
}

// Not a bug: HELP-LAST-PAGE-1 in docs/not-bugs.md.
TEST_F(QuirkHelpLastPage1, ALineBreakAtTheEndOfTheLastLineMakesAPageWithHeadingAndFooterOnly) {
    printHelpText("Title", LinesOfText(52));

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, LinesOfPaper(52)) + "-----\n" + PaperWithHeading(2, {}));
}

TEST_F(HelpPrinting, AnEmptyTextPrintsAPageWithHeadingAndFooter) {
    printHelpText("Title", "");

    EXPECT_EQ(record.AsText(), PaperWithHeading(1, {}));
}

// Not a bug: HELP-PRINT-SILENT-1 in docs/not-bugs.md.
TEST_F(QuirkHelpPrintSilent1, AMachineWithoutAPrinterPrintsNothingAndSaysNothing) {
    int devices = 0;
    platform::services.openPrinter = [&devices](const std::string&) {
        ++devices;
        return std::make_unique<platform::NoPrinter>();
    };
    printHelpText("Title", "some\twords\r\nand lines\r\n");

    EXPECT_EQ(devices, 1);
}

TEST_F(HelpPrinting, APrinterThatCannotBeOpenedPrintsNothingAndSaysNothing) {
    platform::services.openPrinter = [](const std::string&) -> std::unique_ptr<platform::PrinterDevice> {
        throw std::runtime_error("The printer is on loan.");
    };

    EXPECT_NO_THROW(printHelpText("Title", "some\twords\r\nand lines\r\n"));
}

TEST_F(HelpPrinting, ADateThatCannotBeHadIsPassedOver) {
    platform::services.today = []() -> std::chrono::year_month_day { throw std::runtime_error("No clock."); };
    printHelpText("Title", "word");

    EXPECT_EQ(TextsOfPages(), "Title Page 1 word");
}

TEST_F(HelpPrinting, AnyStatementThatFailsIsPassedOverAndTheNextOnesRun) {
    record.pageHeight = 2880;  // a page of one line
    const char* const papers[] = {
        "Title 2/4/2004 Page 1 a | Title 2/4/2004 Page 2 b",  // nothing fails
        "2/4/2004 Page 1 a | Title 2/4/2004 Page 2 b",        // the beginning of the job
        "2/4/2004 Page 1 a | Title 2/4/2004 Page 2 b",        // the heading
        "Title Page 1 a | Title 2/4/2004 Page 2 b",           // the date
        "Title 2/4/2004 a | Title 2/4/2004 Page 2 b",         // the number of the page
        "Title 2/4/2004 Page 1 | Title 2/4/2004 Page 2 b",    // a word
        "Title 2/4/2004 Page 1 a Title 2/4/2004 Page 1 b",    // the new page
        "Title 2/4/2004 Page 1 a | 2/4/2004 Page 2 b",
        "Title 2/4/2004 Page 1 a | Title Page 2 b",
        "Title 2/4/2004 Page 1 a | Title 2/4/2004 b",
        "Title 2/4/2004 Page 1 a | Title 2/4/2004 Page 2",
        "",  // the end of the job
    };
    int failing = 0;
    for (const char* const paper : papers) {
        record.jobs.clear();
        record.FailOnceAt(failing);
        printHelpText("Title", "a\nb");
        EXPECT_EQ(TextsOfPages(), paper) << "operation " << failing;
        ++failing;
    }
}

TEST_F(HelpPrinting, APrinterThatTakesNothingAnyMoreIsTriedToTheEnd) {
    for (int failing = 1; failing <= 5; ++failing) {
        record.FailFrom(failing);
        printHelpText("Title", LinesOfText(60) + "\tword\r\n");
        EXPECT_TRUE(record.jobs.empty()) << "from operation " << failing;
    }
}

TEST_F(HelpPrinting, APageOnDemandIsTheNextOne) {
    platform::Printer printer(record.OpenDevice());
    printHelpPage(printer, "One", false);
    printHelpPage(printer, "Two", true);
    EXPECT_DOUBLE_EQ(printer.CurrentX(), 720);
    EXPECT_DOUBLE_EQ(printer.CurrentY(), 1440);
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), Paper({{3, std::string(47, ' ') + "One"}, {60, Footer(1)}}) + "-----\n" +
                                   Paper({{3, std::string(47, ' ') + "Two"}, {60, Footer(2)}}));
}

}  // namespace
}  // namespace ballhaven
