#include "printing/PageHead.h"

#include "state/AppState.h"
#include "support/Games.h"
#include "support/PrintedReport.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using platform::PrinterFont;

class PageHead : public support::PrintedReport {
  protected:
    PageHead() {
        support::SetUpGame(support::NumberGame());
        NameGame("Six of 49");
    }

    /// Prints a head, with counts that it has to set.
    void Print() {
        lineCount = 77;
        errorCode = 77;
        printHeader(job, lineCount, errorCode);
    }

    platform::Printer job{printer.OpenDevice()};
    std::int16_t lineCount = 0;
    std::int16_t errorCode = 0;
};

// Not a bug: PAGE-HEAD-COUNT-1 in docs/not-bugs.md.
TEST_F(PageHead, TakesFourLinesOfThePaperAndCountsAsTwo) {
    Print();
    EXPECT_EQ(errorCode, 0);
    EXPECT_EQ(lineCount, 2);
    EXPECT_EQ(job.CurrentY(), 4 * 240);
}

TEST_F(PageHead, NamesTheGameInAll20ColumnsFromColumn5) {
    Print();
    job.EndDoc();
    EXPECT_EQ(printer.AsText(), "\n\n    Ballhaven:  Six of 49           \n");
}

TEST_F(PageHead, IsPrintedInArial12WithoutStyles) {
    job.SetBold(true);
    job.SetItalic(true);
    job.SetUnderline(true);
    Print();
    job.EndDoc();
    for (const auto& text : printer.jobs[0][0]) {
        EXPECT_EQ(text.font, (PrinterFont{"Arial", 12, false, false, false})) << text.text;
    }
}

TEST_F(PageHead, WithoutArialTheFormerFontStaysWithItsSizeAndStyles) {
    job.SetFontName("Times New Roman");
    job.SetFontSize(9);
    job.SetBold(true);
    printer.missingFonts = {"Arial"};
    Print();
    EXPECT_EQ(errorCode, 0);
    EXPECT_EQ(lineCount, 2);
    job.EndDoc();
    EXPECT_EQ(printer.jobs[0][0][0].font, (PrinterFont{"Times New Roman", 9, true, false, false}));
}

TEST_F(PageHead, AFontlessDeviceOfItsOwnIsPassedOverTheSameWay) {
    printer.missingFonts = {"", "Arial"};
    Print();
    EXPECT_EQ(errorCode, platform::noSuchFont);  // of setting the former font, which is the device's own
    EXPECT_EQ(lineCount, 2);
}

TEST_F(PageHead, APrinterThatRefusesTheFirstLineIsNotReady) {
    printer.FailFrom(1, 25);
    ExpectNotReady();
    Print();
    EXPECT_EQ(errorCode, 25);
    EXPECT_EQ(lineCount, 0);
    EXPECT_EQ(job.FontName(), "");
}

TEST_F(PageHead, AFailureFurtherDownIsToldTheSameWay) {
    printer.FailFrom(2, 25);  // the first text, after the beginning
    ExpectNotReady();
    Print();
    EXPECT_EQ(errorCode, 25);
    EXPECT_EQ(lineCount, 0);
}

TEST_F(PageHead, AFirstLineThatFailsForWantOfAFontGoesOnWithTheFormerFont) {
    job.SetFontSize(9);
    printer.FailFrom(1, platform::noSuchFont);
    Print();
    EXPECT_EQ(job.FontName(), "");
    EXPECT_EQ(job.FontSize(), 9);
    EXPECT_EQ(errorCode, platform::noSuchFont);  // the lines of the head have failed in the same way
    EXPECT_EQ(lineCount, 2);
}

TEST_F(PageHead, AJobIsCalledByTheGameAndTheReport) {
    EXPECT_EQ(ReportTitle("Data Report"), "Six of 49 Data Report");
    appState.gameRecord.clear();
    EXPECT_EQ(ReportTitle("Play Slips"), "Play Slips");
}

}  // namespace
}  // namespace ballhaven
