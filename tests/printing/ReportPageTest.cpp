#include "printing/ReportPage.h"

#include "support/Games.h"
#include "support/PrintedReport.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

class Page : public support::PrintedReport {
  protected:
    Page() {
        support::SetUpGame(support::NumberGame());
        NameGame("Six of 49");
        EXPECT_TRUE(page.Begin());
    }

    void PrintRows(int count) {
        for (int row = 0; row < count; ++row) {
            page.PrintRow({{5, "row"}});
        }
    }

    platform::Printer job{printer.OpenDevice()};
    ReportPage page{job};
    const SectionHead head{'=', "Rows", {{5, "Head"}, {15, "Other"}}};
};

TEST_F(Page, TheHeadOfASectionCountsSixAndARowTwo) {
    EXPECT_EQ(page.LineCount(), 2);
    page.PrintHead(head);
    EXPECT_EQ(page.LineCount(), 8);
    PrintRows(1);
    EXPECT_EQ(page.LineCount(), 10);
    page.EndSection();
    EXPECT_EQ(page.LineCount(), 11);
    page.PrintRemark("No Data");
    EXPECT_EQ(page.LineCount(), 12);
    page.PrintUncounted({{5, "part"}});
    EXPECT_EQ(page.LineCount(), 12);
    job.EndDoc();
    EXPECT_EQ(LinesOfPage(0),
              (std::vector<std::string>{"    Ballhaven:  Six of 49", "    " + std::string(70, '='), "    Rows",
                                        "    Head      Other", "    " + std::string(70, '_'), "    row",
                                        "         No Data", "    part"}));
}

TEST_F(Page, ASectionHasRoomUpToACountOf40) {
    PrintRows(19);
    EXPECT_EQ(page.LineCount(), 40);
    EXPECT_TRUE(page.HasRoomForSection());
    page.EndSection();
    EXPECT_FALSE(page.HasRoomForSection());
}

TEST_F(Page, IsFullAtACountOf47) {
    PrintRows(22);
    EXPECT_EQ(page.LineCount(), 46);
    EXPECT_TRUE(page.GoOn(head, false));
    EXPECT_EQ(page.LineCount(), 46);
    page.EndSection();
    EXPECT_TRUE(page.GoOn(head, false));
    EXPECT_EQ(page.LineCount(), 8);
    EXPECT_EQ(job.Page(), 2);
}

TEST_F(Page, AFullPageStaysAfterTheLastRow) {
    PrintRows(23);
    EXPECT_TRUE(page.GoOn(head, true));
    EXPECT_EQ(page.LineCount(), 48);
    EXPECT_EQ(job.Page(), 1);
}

TEST_F(Page, APrinterThatFailsInThePageHeadEndsTheReport) {
    PrintRows(23);
    printer.FailFrom(2);  // the first text of the second page
    ExpectNotReady();
    EXPECT_FALSE(page.GoOn(head, false));
}

TEST_F(Page, APrinterThatFailsAtThePageBreakItselfEndsTheReportToo) {
    printer.FailFrom(1, 25);
    ExpectNotReady();
    EXPECT_FALSE(page.Turn());
}

TEST_F(Page, APrinterThatFailsInARowThrows) {
    printer.FailFrom(1, 25);
    EXPECT_THROW(PrintRows(1), platform::PrinterFailure);
}

TEST_F(Page, ATextThatReachesIntoTheNextColumnSendsThatToTheNextLine) {
    page.PrintRow({{5, "longer than ten"}, {15, "next"}});
    job.EndDoc();
    EXPECT_EQ(LinesOfPage(0),
              (std::vector<std::string>{"    Ballhaven:  Six of 49", "    longer than ten", "              next"}));
}

}  // namespace
}  // namespace ballhaven
