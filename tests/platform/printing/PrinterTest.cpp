#include "platform/printing/Printer.h"

#include "platform/Services.h"
#include "support/PrinterRecord.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

class PrinterTest : public testing::Test {
  protected:
    /// The number with which an operation fails; 0 for none.
    template <typename Operation>
    static int ErrorOf(const Operation& operation) {
        try {
            operation();
        } catch (const PrinterFailure& failure) {
            return failure.number;
        }
        return 0;
    }

    support::PrinterRecord record;
    Printer printer{record.OpenDevice()};
};

TEST_F(PrinterTest, TextsFollowEachOtherWithoutAGapAndTheLineEndsAfterThem) {
    printer.PrintLine({"Ballhaven:  ", "Six of 49"});
    printer.PrintLine();
    printer.PrintLine({"below"});
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "Ballhaven:  Six of 49\n\nbelow\n");
}

TEST_F(PrinterTest, ColumnOneIsTheLeftEdgeAndAStopGoesToItsColumn) {
    printer.PrintLine({ColumnStop{1}, "1234567890"});
    printer.PrintLine({ColumnStop{5}, "at 5", ColumnStop{10}, "at 10"});
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "1234567890\n    at 5 at 10\n");
}

TEST_F(PrinterTest, AStopThatIsPassedAlreadyTakesEffectOnTheNextLine) {
    printer.PrintLine({ColumnStop{5}, "Numbers", ColumnStop{5}, "____"});
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "    Numbers\n    ____\n");
}

TEST_F(PrinterTest, AStopThatIsJustReachedStaysOnTheLine) {
    printer.PrintLine({"1234", ColumnStop{5}, "5"});
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "12345\n");
}

TEST_F(PrinterTest, AnOpenLineGoesOnWithTheNextPrint) {
    printer.Print({ColumnStop{5}, "Numbers"});
    EXPECT_EQ(printer.CurrentX(), 4 * 120 + 7 * 120);
    EXPECT_EQ(printer.CurrentY(), 0);
    printer.PrintLine({" open"});
    EXPECT_EQ(printer.CurrentX(), 0);
    EXPECT_EQ(printer.CurrentY(), 240);
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "    Numbers open\n");
}

TEST_F(PrinterTest, APositionCanBeSetInTwips) {
    printer.SetCurrentX(720);
    printer.SetCurrentY(1440);
    printer.Print({"half an inch in, an inch down"});
    printer.EndDoc();

    ASSERT_EQ(record.jobs.size(), 1U);
    EXPECT_EQ(record.jobs[0][0][0].x, 720);
    EXPECT_EQ(record.jobs[0][0][0].y, 1440);
}

TEST_F(PrinterTest, TellsThePrintableAreaAndTheMeasuresOfATextInTwips) {
    EXPECT_EQ(printer.ScaleWidth(), 11520);
    EXPECT_EQ(printer.ScaleHeight(), 15120);
    EXPECT_EQ(printer.TextWidth("0"), 120);
    EXPECT_EQ(printer.TextWidth("Page 12"), 840);
    EXPECT_EQ(printer.TextHeight(), 240);
}

TEST_F(PrinterTest, ANewPageBeginsAtItsTopAndPagesAreCounted) {
    printer.PrintLine({"first"});
    EXPECT_EQ(printer.Page(), 1);
    printer.Print({"open"});
    printer.NewPage();
    EXPECT_EQ(printer.Page(), 2);
    EXPECT_EQ(printer.CurrentX(), 0);
    EXPECT_EQ(printer.CurrentY(), 0);
    printer.PrintLine({"second"});
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "first\nopen\n-----\nsecond\n");
}

TEST_F(PrinterTest, TheJobIsSentWhenItEndsAndTheNextOneBeginsAnew) {
    printer.PrintLine({"one"});
    printer.NewPage();
    EXPECT_TRUE(record.jobs.empty());
    printer.EndDoc();
    EXPECT_EQ(printer.Page(), 1);
    printer.PrintLine({"two"});
    printer.EndDoc();

    EXPECT_EQ(record.AsText(), "one\n-----\n=====\ntwo\n");
}

TEST_F(PrinterTest, NothingIsSentWhereNothingWasPrintedOrTheJobIsDropped) {
    printer.EndDoc();
    {
        Printer dropped(record.OpenDevice());
        dropped.PrintLine({"unfinished"});
    }

    EXPECT_TRUE(record.jobs.empty());
}

TEST_F(PrinterTest, TextsAreDrawnInTheFontThatIsSet) {
    printer.SetFontName("Arial");
    printer.SetFontSize(12);
    printer.SetBold(true);
    printer.SetItalic(true);
    printer.SetUnderline(true);
    printer.PrintLine({"loud"});
    printer.SetBold(false);
    printer.SetItalic(false);
    printer.SetUnderline(false);
    printer.PrintLine({"plain"});
    printer.EndDoc();

    EXPECT_EQ(record.jobs[0][0][0].font, (PrinterFont{"Arial", 12, true, true, true}));
    EXPECT_EQ(record.jobs[0][0][1].font, (PrinterFont{"Arial", 12, false, false, false}));
}

TEST_F(PrinterTest, AFontThatCannotBeHadFailsWithItsNumberAndLeavesTheOneBefore) {
    printer.SetFontName("Times New Roman");
    record.missingFonts = {"Arial"};

    EXPECT_EQ(ErrorOf([this] { printer.SetFontName("Arial"); }), 380);
    EXPECT_EQ(printer.FontName(), "Times New Roman");
    printer.SetFontSize(9);
    EXPECT_EQ(printer.FontSize(), 9);
}

TEST_F(PrinterTest, TheEmptyNameIsTheDevicesOwnFont) {
    EXPECT_EQ(printer.FontName(), "");
    printer.SetFontName("Arial");

    EXPECT_EQ(ErrorOf([this] { printer.SetFontName(""); }), 0);
    EXPECT_EQ(printer.FontName(), "");
}

TEST_F(PrinterTest, ADeviceThatIsNotReadyFailsWithTheFirstLineEvenAnEmptyOne) {
    record.FailFrom(1);

    EXPECT_EQ(ErrorOf([this] { printer.PrintLine({""}); }), deviceNotReady);
    EXPECT_EQ(printer.CurrentY(), 0);
    EXPECT_NE(deviceNotReady, noSuchFont);
}

TEST_F(PrinterTest, AFailureAtAPageBreakOrAtTheEndLeavesThePage) {
    printer.PrintLine({"first"});
    record.FailFrom(1, 25);

    EXPECT_EQ(ErrorOf([this] { printer.NewPage(); }), 25);
    EXPECT_EQ(printer.Page(), 1);
    EXPECT_EQ(printer.CurrentY(), 240);
    EXPECT_EQ(ErrorOf([this] { printer.EndDoc(); }), 25);
    EXPECT_TRUE(record.jobs.empty());
}

TEST_F(PrinterTest, AMachineWithoutAPrinterIsNotReady) {
    Printer none(Services().openPrinter("Data report"));

    EXPECT_EQ(ErrorOf([&none] { none.PrintLine({""}); }), deviceNotReady);
    EXPECT_EQ(ErrorOf([&none] { none.SetFontName("Arial"); }), 0);
}

}  // namespace
}  // namespace ballhaven::platform
