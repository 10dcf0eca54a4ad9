#include "printing/PrintDialog.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "forms/PrintForm.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "support/PrinterRecord.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QCheckBox>
#include <QTest>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::Settle;

constexpr int selections = 8;  // the first of six columns in the system's record

class PrintDialog : public support::RunningProgram {
  protected:
    /// Starts with a game of three draws, with boxes as the system's record keeps them.
    void StartWith(const std::string& stored, const std::vector<int>& play = {}) {
        Store({.mainPicks = 3,
               .high = 12,
               .draws = {{"1/6/1990", {1, 2, 3}}, {"1/13/1990", {2, 3, 4}}, {"1/20/1990", {2, 5, 12}}}});
        StorePlay(1, play);
        std::string table = directory.Read("LOTTOSYS");
        table.replace(selections - 1, stored.size(), stored);
        directory.Write("LOTTOSYS", table);
        Start();
        platform::services.openPrinter = [this](const std::string& title) {
            titles.push_back(title);
            wasEnabled = *frmPrint.window.enabled;
            hadHourglass = QApplication::overrideCursor() != nullptr;
            return printer.OpenDevice();
        };
    }

    /// Opens the dialog by the menu, and acts in it.
    void InDialog(std::function<void()> acts) {
        InModal(frmPrint.window, std::move(acts));
        ChooseFromMenu("mnuFile", "mnuFileArray(0)");
    }

    [[nodiscard]] std::string Kept() const { return RecordColumns(0, selections, 6); }

    /// The ticked boxes by their indices.
    [[nodiscard]] std::string Ticked() const {
        std::string ticked;
        for (int box = 0; box < 7; ++box) {
            if (Usable<QCheckBox>(("chkPrint(" + std::to_string(box) + ")").c_str()).isChecked()) {
                ticked += std::to_string(box);
            }
        }
        return ticked;
    }

    void ExpectNotReady() {
        boxes.Expect("Ballhaven", "Printer Not Ready.\n\nPlease fix printer and try again.", platform::BoxButtons::Ok,
                     platform::BoxIcon::Information);
    }

    support::PrinterRecord printer;
    std::vector<std::string> titles;  ///< of the devices that were opened
    bool wasEnabled = true;           ///< the dialog, when the last one was
    bool hadHourglass = false;
};

TEST_F(PrintDialog, OpensWithTheNumberOfGamesAndTheKeptBoxes) {
    StartWith("010010");
    InDialog([this] {
        EXPECT_EQ(*frmPrint.window.title, "Print Data for Last 3 Games");
        EXPECT_EQ(Ticked(), "14");
        EXPECT_EQ(frmPrint.window.Width(), 4125);
        EXPECT_EQ(frmPrint.window.Height(), 3425);
        EXPECT_EQ(frmPrint.window.Top() / 15, 1190 / 15);  // in whole pixels
        EXPECT_EQ(frmPrint.window.Left() / 15, 150 / 15);
        EXPECT_FALSE(frmPrint.frmPrintLoading);
        ClickToClose("cmdPrint(0)");
    });
    EXPECT_FALSE(frmPrint.window.IsLoaded());
}

TEST_F(PrintDialog, ReadsEveryDigitAboveZeroAsTickedAndABlankAsNot) {
    StartWith(" 07x2-");
    InDialog([this] {
        EXPECT_EQ(Ticked(), "24");
        ClickToClose("cmdPrint(0)");
    });
}

TEST_F(PrintDialog, OpeningRewritesNothing) {
    StartWith("1 7 0x");
    WatchSaves();
    const auto files = directory.Files();
    InDialog([this] { ClickToClose("cmdPrint(0)"); });
    EXPECT_EQ(directory.Files(), files);
    EXPECT_TRUE(saved.empty());
}

TEST_F(PrintDialog, OpeningWithOtherBoxesThanTheLastTimeRewritesNothing) {
    StartWith("110000");
    InDialog([this] { ClickToClose("cmdPrint(0)"); });
    appState.systemRecord.replace(7, 6, "0 1000");
    WatchSaves();
    InDialog([this] {
        EXPECT_EQ(Ticked(), "2");
        ClickToClose("cmdPrint(0)");
    });
    EXPECT_EQ(appState.systemRecord.substr(7, 6), "0 1000");
    EXPECT_TRUE(saved.empty());
}

TEST_F(PrintDialog, ABoxIsKeptAtTheClickEvenIfTheDialogIsCancelled) {
    StartWith("010010");
    InDialog([this] {
        Click("chkPrint(0)");
        EXPECT_EQ(Kept(), "110010");
        Click("chkPrint(4)");
        EXPECT_EQ(Kept(), "110000");
        ClickToClose("cmdPrint(0)");
    });
    InDialog([this] {
        EXPECT_EQ(Ticked(), "01");
        ClickToClose("cmdPrint(0)");
    });
    EXPECT_TRUE(titles.empty());
}

TEST_F(PrintDialog, TheBoxOfThePlaysIsEmptyAtEachOpening) {
    StartWith("000000", {5, 6, 7});
    InDialog([this] {
        Click("chkPrint(6)");
        ClickToClose("cmdPrint(1)");
    });
    EXPECT_EQ(titles, (std::vector<std::string>{"Six of 49 Play Slips"}));
    EXPECT_EQ(Kept(), "000000");
    InDialog([this] {
        EXPECT_EQ(Ticked(), "");
        ClickToClose("cmdPrint(0)");
    });
}

TEST_F(PrintDialog, PrintsTheDataFirstAndThenThePlays) {
    StartWith("100000", {5, 6, 7});
    InDialog([this] {
        Click("chkPrint(6)");
        ClickToClose("cmdPrint(1)");
    });
    EXPECT_EQ(titles, (std::vector<std::string>{"Six of 49 Data Report", "Six of 49 Play Slips"}));
    EXPECT_EQ(printer.jobs.size(), 2U);
    EXPECT_FALSE(frmPrint.window.IsLoaded());
    EXPECT_TRUE(*frmPrint.window.enabled);
}

TEST_F(PrintDialog, IsOffUnderTheHourglassWhileItPrints) {
    StartWith("100000");
    InDialog([this] {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        ClickToClose("cmdPrint(1)");
        EXPECT_FALSE(wasEnabled);
        EXPECT_TRUE(hadHourglass);
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PrintDialog, PrintWithNothingTickedJustClosesIt) {
    StartWith("000000");
    InDialog([this] { ClickToClose("cmdPrint(1)"); });
    EXPECT_FALSE(frmPrint.window.IsLoaded());
    EXPECT_TRUE(titles.empty());
}

TEST_F(PrintDialog, APrinterThatIsNotReadyIsToldOfForEachReport) {
    StartWith("100000", {5, 6, 7});
    printer.FailFrom(1);
    ExpectNotReady();
    ExpectNotReady();
    InDialog([this] {
        Click("chkPrint(6)");
        ClickToClose("cmdPrint(1)");
    });
    EXPECT_FALSE(frmPrint.window.IsLoaded());
    EXPECT_TRUE(exitCodes.empty());
}

TEST_F(PrintDialog, APrinterThatFailsAtTheEndOfThePlaysIsPassedOver) {
    StartWith("000000", {5, 6, 7});
    // A beginning, two texts of the page head, five of the section's, a label and three picks
    printer.FailFrom(1 + 2 + 5 + 4 + 1);
    InDialog([this] {
        Click("chkPrint(6)");
        ClickToClose("cmdPrint(1)");
    });
    EXPECT_FALSE(frmPrint.window.IsLoaded());
    EXPECT_TRUE(exitCodes.empty());
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(PrintDialog, TheKeyboardTicksABoxToo) {
    StartWith("000000");
    InDialog([this] {
        Usable("chkPrint(0)").setFocus();
        Press(Qt::Key_Tab);
        Press(Qt::Key_Space);
        EXPECT_EQ(Kept(), "010000");
        ClickToClose("cmdPrint(0)");
    });
}

TEST_F(PrintDialog, EscapeCancelsIt) {
    StartWith("100000");
    InDialog([] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    EXPECT_FALSE(frmPrint.window.IsLoaded());
    EXPECT_TRUE(titles.empty());
}

TEST_F(PrintDialog, CannotBeMadeLargerButSmaller) {
    StartWith("000000");
    InDialog([this] {
        QWidget& dialog = *Usable("cmdPrint(0)").window();
        dialog.resize(dialog.width() + 40, dialog.height() + 40);
        Settle();
        EXPECT_EQ(frmPrint.window.Width(), 4125);
        EXPECT_EQ(frmPrint.window.Height(), 3430);
        frmPrint.window.ResizeByUser(4000, 3400);
        EXPECT_EQ(frmPrint.window.Width(), 4000);
        EXPECT_EQ(frmPrint.window.Height(), 3400);
        frmPrint.window.ResizeByUser(4126, 3430);
        EXPECT_EQ(frmPrint.window.Width(), 4125);
        EXPECT_EQ(frmPrint.window.Height(), 3430);
        ClickToClose("cmdPrint(0)");
    });
}

TEST_F(PrintDialog, ShowsAllItsControls) {
    StartWith("000000");
    InDialog([this] {
        const QWidget& client = Find("chkPrint(6)");
        for (const char* name : {"chkPrint(0)", "chkPrint(6)", "cmdPrint(0)", "cmdPrint(1)"}) {
            const QWidget& control = Usable(name);
            EXPECT_TRUE(client.parentWidget()->rect().contains(control.geometry())) << name;
        }
        ClickToClose("cmdPrint(0)");
    });
}

TEST_F(PrintDialog, IsOpenedByTheToolbarToo) {
    StartWith("000000");
    InModal(frmPrint.window, [this] {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        ClickToClose("cmdPrint(0)");
    });
    Click("cmdButton(1)");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PrintDialog, IsOpenedByThePlaySlipsWindowWithNothingTickedForIt) {
    StartWith("000000");
    ChooseFromMenu("mnuView", "mnuViewArray(3)");
    int opened = 0;
    const auto look = [this, &opened] {
        ++opened;
        EXPECT_EQ(Ticked(), "");
        ClickToClose("cmdPrint(0)");
    };
    InModal(frmPrint.window, look);
    Click("cmdToolbar(1)");
    InModal(frmPrint.window, look);
    frmPlays.mnuPrint.click();
    EXPECT_EQ(opened, 2);
    EXPECT_TRUE(frmPlays.window.IsLoaded());
}

}  // namespace
}  // namespace ballhaven
