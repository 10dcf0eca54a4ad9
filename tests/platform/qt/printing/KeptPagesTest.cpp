#include "platform/qt/printing/KeptPages.h"

#include "platform/printing/Printer.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

/// Pages in memory, which says what is asked of it.
class NotedPages final : public KeptPages {
  public:
    NotedPages(std::vector<std::string>& noteList, std::unique_ptr<QPdfWriter> writer)
        : KeptPages(std::move(writer)), notes(noteList) {}

    bool isReady = true;

  protected:
    void GetReady() override {
        notes.emplace_back("get ready");
        if (!isReady) {
            throw PrinterFailure(deviceNotReady);
        }
    }
    void Send() override { notes.emplace_back("send"); }

  private:
    std::vector<std::string>& notes;
};

class KeptPagesTest : public testing::Test {
  protected:
    [[nodiscard]] std::unique_ptr<QPdfWriter> MakeWriter() {
        document.open(QIODevice::WriteOnly);
        auto writer = std::make_unique<QPdfWriter>(&document);
        writer->setResolution(720);
        writer->setPageLayout(
            QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(18, 18, 18, 18)));
        return writer;
    }

    [[nodiscard]] int PagesInDocument() const { return static_cast<int>(document.data().count("/Type /Page\n")); }

    std::vector<std::string> notes;
    QBuffer document;
    std::unique_ptr<NotedPages> pages = std::make_unique<NotedPages>(notes, MakeWriter());
};

TEST_F(KeptPagesTest, ArePaintedWhenTheJobEndsAndNotBefore) {
    pages->BeginDocument();
    pages->DrawText(0, 0, "first");
    pages->NewPage();
    pages->DrawText(720, 1440, "second");
    EXPECT_EQ(document.size(), 0);
    EXPECT_EQ(notes, (std::vector<std::string>{"get ready"}));
    pages->EndDocument();
    EXPECT_TRUE(document.data().startsWith("%PDF-"));
    EXPECT_EQ(PagesInDocument(), 2);
    EXPECT_EQ(notes, (std::vector<std::string>{"get ready", "send"}));
}

TEST_F(KeptPagesTest, OfADroppedJobNothingIsPainted) {
    pages->BeginDocument();
    pages->DrawText(0, 0, "first");
    pages.reset();
    EXPECT_EQ(document.size(), 0);
    EXPECT_EQ(notes, (std::vector<std::string>{"get ready"}));
}

TEST_F(KeptPagesTest, AnEmptyPageIsAPageToo) {
    pages->BeginDocument();
    pages->NewPage();
    pages->NewPage();
    pages->EndDocument();
    EXPECT_EQ(PagesInDocument(), 3);
}

TEST_F(KeptPagesTest, ADeviceThatIsNotReadyRefusesTheFirstLine) {
    pages->isReady = false;
    Printer printer(std::move(pages));
    EXPECT_THROW(printer.PrintLine({""}), PrinterFailure);
}

TEST_F(KeptPagesTest, AreMeasuredInTwipsWithinTheMargins) {
    EXPECT_NEAR(pages->PageWidth(), 8 * 1440, 1);
    EXPECT_NEAR(pages->PageHeight(), 10.5 * 1440, 1);
}

// The letters of Arial are 30,339 thousandths of the font's size wide, all 52 together; a digit is 556.
TEST_F(KeptPagesTest, AColumnIsAsWideAsALetterOnTheAverage) {
    pages->SetFont({"Arial", 12, false, false, false});
    EXPECT_NEAR(pages->CharacterWidth(), 30.339 / 52 * 12 * 20, 0.5);
    EXPECT_NEAR(pages->TextWidth("10"), 2 * 0.556 * 12 * 20, 0.5);
    EXPECT_NEAR(pages->LineHeight(), 1.149 * 12 * 20, 2);
    pages->SetFont({"Arial", 24, false, false, false});
    EXPECT_NEAR(pages->CharacterWidth(), 30.339 / 52 * 24 * 20, 1);
}

TEST_F(KeptPagesTest, ATextIsAsWideAsItsLettersTogether) {
    pages->SetFont({"Arial", 12, false, false, false});
    EXPECT_NEAR(pages->TextWidth("AVA"), pages->TextWidth("A") * 2 + pages->TextWidth("V"), 0.5);
}

TEST_F(KeptPagesTest, TheWidestLineOfAReportHasRoomOnBothUsualPapers) {
    constexpr double a4Width = 595 - 36;  // points within the margins
    pages->SetFont({"Arial", 12, false, false, false});
    const double right = 4 * pages->CharacterWidth() + pages->TextWidth(std::string(70, '='));
    EXPECT_LT(right, a4Width * 20);
    EXPECT_LT(right, pages->PageWidth());
}

TEST_F(KeptPagesTest, TheHeadsOfAReportStandOnOneLine) {
    pages->SetFont({"Arial", 12, false, false, false});
    EXPECT_LT(pages->TextWidth("Numbers"), 9 * pages->CharacterWidth());
    EXPECT_LT(pages->TextWidth("Number"), 8 * pages->CharacterWidth());
    EXPECT_LT(pages->TextWidth("10c, 10d"), 10 * pages->CharacterWidth());
    EXPECT_LT(pages->TextWidth("1000.E"), 10 * pages->CharacterWidth());
    EXPECT_LT(pages->TextWidth("12/28/2073"), 15 * pages->CharacterWidth());
}

TEST_F(KeptPagesTest, AFontThatCannotBeHadLeavesTheOneBefore) {
    pages->SetFont({"Arial", 12, false, false, false});
    const double width = pages->CharacterWidth();
    try {
        pages->SetFont({"Haven Display Nine", 40, false, false, false});
        ADD_FAILURE() << "There is such a font.";
    } catch (const PrinterFailure& failure) {
        EXPECT_EQ(failure.number, 380);
    }
    EXPECT_EQ(pages->CharacterWidth(), width);
}

TEST_F(KeptPagesTest, ADeviceThatCannotBePaintedFails) {
    NotedPages nowhere(notes, std::make_unique<QPdfWriter>(QStringLiteral("/no/such/folder/pages.pdf")));
    nowhere.BeginDocument();
    EXPECT_THROW(nowhere.EndDocument(), PrinterFailure);
    EXPECT_EQ(notes, (std::vector<std::string>{"get ready"}));
}

}  // namespace
}  // namespace ballhaven::platform
