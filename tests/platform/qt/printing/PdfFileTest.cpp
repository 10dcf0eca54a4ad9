#include "platform/qt/printing/PdfFile.h"

#include "platform/printing/Printer.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

using Names = std::vector<std::string>;

class PdfFileTest : public testing::Test {
  protected:
    [[nodiscard]] std::unique_ptr<PdfFile> Open(const std::string& title) { return OpenIn(folder.Path(), title); }
    [[nodiscard]] std::unique_ptr<PdfFile> OpenIn(const std::string& path, const std::string& title) {
        return std::make_unique<PdfFile>(title, path, [this](const std::string& file) { shown.push_back(file); });
    }

    void Print(const std::string& title, int pages = 1) {
        Printer printer(Open(title));
        printer.PrintLine({title});
        for (int page = 1; page <= pages; ++page) {
            if (page > 1) {
                printer.NewPage();
            }
            printer.PrintLine({"page " + std::to_string(page)});
        }
        printer.EndDoc();
    }

    [[nodiscard]] Names FileNames() const {
        Names names;
        for (const auto& [name, bytes] : folder.Files()) {
            names.push_back(name);
        }
        return names;
    }

    [[nodiscard]] static int ErrorOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const PrinterFailure& failure) {
            return failure.number;
        }
        return 0;
    }

    support::TemporaryDirectory folder;
    Names shown;
};

int CountOf(const std::string& text, const std::string& part) {
    int count = 0;
    for (auto place = text.find(part); place != std::string::npos; place = text.find(part, place + 1)) {
        ++count;
    }
    return count;
}

TEST_F(PdfFileTest, AJobBecomesAFileOfItsTitleWhichIsShown) {
    Print("Six of 49 Data Report", 3);
    EXPECT_EQ(FileNames(), (Names{"Six of 49 Data Report.pdf"}));
    EXPECT_EQ(shown, (Names{folder / "Six of 49 Data Report.pdf"}));
    const std::string pdf = folder.Read("Six of 49 Data Report.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_TRUE(pdf.ends_with("%%EOF\n"));
    EXPECT_EQ(CountOf(pdf, "/Type /Page\n"), 3);
}

TEST_F(PdfFileTest, AnotherJobOfTheTitleLeavesTheFirstFileAlone) {
    Print("Six of 49 Data Report", 1);
    const std::string first = folder.Read("Six of 49 Data Report.pdf");
    Print("Six of 49 Data Report", 2);
    EXPECT_EQ(FileNames(), (Names{"Six of 49 Data Report (2).pdf", "Six of 49 Data Report.pdf"}));
    EXPECT_EQ(folder.Read("Six of 49 Data Report.pdf"), first);
    EXPECT_EQ(shown.back(), folder / "Six of 49 Data Report (2).pdf");
}

TEST_F(PdfFileTest, AJobThatIsDroppedLeavesNothing) {
    {
        Printer printer(Open("Dropped"));
        printer.PrintLine({"unfinished"});
        printer.NewPage();
        EXPECT_EQ(FileNames(), (Names{"Dropped.pdf.new"}));
    }
    EXPECT_EQ(FileNames(), Names{});
    EXPECT_TRUE(shown.empty());
}

TEST_F(PdfFileTest, AFolderThatTakesNoFileIsNotReadyForTheFirstLine) {
    Printer missing(OpenIn(folder / "missing", "Report"));
    EXPECT_EQ(ErrorOf([&] { missing.PrintLine({""}); }), deviceNotReady);

    support::WatchedFiles watched;
    watched.before = [](std::size_t) { return EACCES; };
    Printer printer(Open("Report"));
    EXPECT_EQ(ErrorOf([&] { printer.PrintLine({""}); }), deviceNotReady);
}

TEST_F(PdfFileTest, AFullDiskFailsAtTheEndAndLeavesNothing) {
    support::WatchedFiles watched;
    watched.room = 2000;
    {
        Printer printer(Open("Report"));
        printer.PrintLine({"line"});
        EXPECT_EQ(ErrorOf([&] { printer.EndDoc(); }), deviceNotReady);
    }
    EXPECT_EQ(FileNames(), Names{});
    EXPECT_TRUE(shown.empty());
}

TEST_F(PdfFileTest, TheFileIsForTheUserAlone) {
    Print("Report");
    EXPECT_EQ(std::filesystem::status(folder / "Report.pdf").permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(PdfFileTest, EveryByteOfAGamesNameMakesAFileName) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string name = "x" + std::string(1, static_cast<char>(byte)) + "y";
        Print(name);
        ASSERT_EQ(FileNames().size(), 1U) << byte;
        EXPECT_EQ(shown.back(), folder / FileNames()[0]) << byte;
        std::filesystem::remove(shown.back());
    }
}

TEST(FileNames, HaveAnUnderscoreForWhatASystemDoesNotTake) {
    EXPECT_EQ(FileNameOf("Six of 49 Data Report"), "Six of 49 Data Report");
    EXPECT_EQ(FileNameOf("A/B\\C:D*E?F\"G<H>I|J Play Slips"), "A_B_C_D_E_F_G_H_I_J Play Slips");
    EXPECT_EQ(FileNameOf(std::string("a\0b\x7F"
                                     "c\x81"
                                     "d",
                                     7)),
              "a_b_c_d");
}

TEST(FileNames, AreNeitherHiddenNorEmptyNorADirectory) {
    EXPECT_EQ(FileNameOf(".."), "_.");
    EXPECT_EQ(FileNameOf(".hidden Play Slips"), "_hidden Play Slips");
    EXPECT_EQ(FileNameOf(""), "Report");
    EXPECT_EQ(FileNameOf("  \t "), "Report");
}

TEST(FileNames, KeepLettersOfTheCodePage) {
    EXPECT_EQ(FileNameOf("Gl\xFC"
                         "ckszahl 5 \x80"),
              QStringLiteral(u"Gl\u00FCckszahl 5 \u20AC"));
}

}  // namespace
}  // namespace ballhaven::platform
