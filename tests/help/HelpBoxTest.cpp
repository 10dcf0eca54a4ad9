#include "help/HelpBox.h"

#include "forms/HelpBoxForm.h"
#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "state/AppState.h"
#include "support/PrinterRecord.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <functional>
#include <string>

namespace ballhaven {
namespace {

using support::Settle;

class HelpBox : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({});
        Start();
        platform::services.openPrinter = [this](const std::string&) {
            if (whilePrinting) {
                whilePrinting();
            }
            return printer.OpenDevice();
        };
    }

    /// Opens the help by the main window's menu; the acts in it go up to its closing.
    void OpenFromMain(const char* entry, std::function<void()> acts) {
        InModal(frmHelpBox.window, std::move(acts));
        ChooseFromMenu("mnuHelp", entry);
    }

    /// Opens the help by the menu of the Play Slips window. It stays open.
    void OpenFromPlays(std::size_t entry) {
        ChooseFromMenu("mnuView", "mnuViewArray(3)");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&PlaySlips()));
        frmPlays.mnuHelpArray[entry].click();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Box()));
        Settle();
    }

    static QWidget& WidgetOf(const platform::Window& window) {
        auto* const widget = dynamic_cast<QWidget*>(window.view);
        if (widget == nullptr) {
            throw std::runtime_error(window.name + " is not open");
        }
        return *widget;
    }
    static QWidget& Box() { return WidgetOf(frmHelpBox.window); }
    static QWidget& PlaySlips() { return WidgetOf(frmPlays.window); }

    /// Another window comes to the front; while the help is modal, one that is modal too, as a message box is.
    static void GiveFocusTo(QWidget& stranger) {
        stranger.setWindowModality(Box().isModal() ? Qt::ApplicationModal : Qt::NonModal);
        stranger.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&stranger));
        Settle();
    }

    [[nodiscard]] QPlainTextEdit& Text() const { return Usable<QPlainTextEdit>("txtText"); }
    [[nodiscard]] std::string Heading() const { return Usable<QLabel>("lblLabel").text().toStdString(); }

    /// The lines of the text that do not fit into the box.
    [[nodiscard]] std::string LinesTooWide() const {
        std::string lines;
        for (QTextBlock block = Text().document()->begin(); block.isValid(); block = block.next()) {
            (void)Text().document()->documentLayout()->blockBoundingRect(block);  // which lays the line out
            if (block.layout()->lineCount() != 1) {
                lines += block.text().toStdString() + "\n";
            }
        }
        return lines;
    }

    support::PrinterRecord printer;
    std::function<void()> whilePrinting;
};

TEST_F(HelpBox, TheMainWindowShowsTheInstructionsModally) {
    bool shown = false;
    OpenFromMain("mnuHelpArray(0)", [&] {
        shown = true;
        EXPECT_TRUE(Box().isModal());
        EXPECT_EQ(appState.helpTopic, 0);
        EXPECT_EQ(Heading(), "Ballhaven Instructions");
        EXPECT_TRUE(Text().toPlainText().startsWith(" Main Screen: (Select Game, History Set, Hot Table)\n\n"));
        Box().close();
    });
    EXPECT_TRUE(shown);
    EXPECT_FALSE(frmHelpBox.window.IsLoaded());
}

TEST_F(HelpBox, TheMainWindowShowsWhatIsSaidAboutTheProgram) {
    OpenFromMain("mnuHelpArray(2)", [&] {
        EXPECT_EQ(appState.helpTopic, 2);
        EXPECT_EQ(Heading(), "About Ballhaven");
        EXPECT_TRUE(Text().toPlainText().startsWith(" Ballhaven\n  Version 1.5.6  12/02/02\n"));
        Box().close();
    });
}

TEST_F(HelpBox, TheSeparatorsDoNothing) {
    EXPECT_TRUE(MenuEntry("mnuHelpArray(1)").isSeparator());
    EXPECT_FALSE(frmMainForm.mnuHelpArray[1].click);

    ChooseFromMenu("mnuView", "mnuViewArray(3)");
    const auto* const besideSlips = PlaySlips().findChild<QAction*>(QStringLiteral("mnuHelpArray(1)"));
    ASSERT_NE(besideSlips, nullptr);
    EXPECT_TRUE(besideSlips->isSeparator());
    EXPECT_FALSE(frmPlays.mnuHelpArray[1].click);
}

TEST_F(HelpBox, ThePlaySlipsWindowShowsItBesideTheOthers) {
    OpenFromPlays(0);
    EXPECT_FALSE(Box().isModal());
    EXPECT_EQ(Heading(), "Ballhaven Instructions");
    EXPECT_EQ(appState.helpTopic, 0);
    EXPECT_TRUE(frmPlays.window.IsLoaded());
}

TEST_F(HelpBox, ThePlaySlipsWindowShowsWhatIsSaidAboutTheProgram) {
    OpenFromPlays(2);
    EXPECT_EQ(Heading(), "About Ballhaven");
    EXPECT_EQ(appState.helpTopic, 2);
}

TEST_F(HelpBox, OpensInItsPlaceAndSize) {
    OpenFromPlays(0);
    EXPECT_EQ(Box().pos(), QPoint((3800 + 7) / 15, 0));
    EXPECT_EQ(Find("txtText").geometry(), QRect(10, 32, 361, 353));
}

TEST_F(HelpBox, EveryLineFitsIntoTheBox) {
    OpenFromPlays(0);
    EXPECT_EQ(LinesTooWide(), "");
    EXPECT_FALSE(Text().horizontalScrollBar()->isVisible());
}

TEST_F(HelpBox, EveryLineAboutTheProgramFitsIntoTheBox) {
    OpenFromPlays(2);
    EXPECT_EQ(LinesTooWide(), "");
}

TEST_F(HelpBox, TheHeadingFitsIntoItsPlace) {
    OpenFromPlays(0);
    const auto& heading = Usable<QLabel>("lblLabel");
    EXPECT_TRUE(heading.font().bold());
    EXPECT_LE(heading.fontMetrics().horizontalAdvance(heading.text()), heading.width());
}

TEST_F(HelpBox, TheTextHasTheFocusAndItsKeysScrollIt) {
    OpenFromPlays(0);
    EXPECT_EQ(QApplication::focusWidget(), &Text());
    Press(Qt::Key_PageDown);
    EXPECT_GT(Text().verticalScrollBar()->value(), 5);
}

TEST_F(HelpBox, ComesToTheFrontInTheNormalState) {
    frmHelpBox.window.Load();
    frmHelpBox.window.SetState(platform::WindowState::Maximised);
    ASSERT_EQ(frmHelpBox.window.State(), platform::WindowState::Maximised);
    frmHelpBox.window.Show();
    Settle();
    EXPECT_EQ(frmHelpBox.window.State(), platform::WindowState::Normal);
}

TEST_F(HelpBox, AClickOnTheMainWindowClosesItAndDoesItsWork) {
    OpenFromPlays(0);
    ASSERT_EQ(*frmMainForm.lblPlay.text, "1.A");
    MainWindow().activateWindow();  // which the desktop does for a press of the mouse
    Click("cmdPlayBttn(1)");
    EXPECT_FALSE(frmHelpBox.window.IsLoaded());
    EXPECT_TRUE(MainWindow().isActiveWindow());
    EXPECT_TRUE(frmPlays.window.IsLoaded());
    EXPECT_EQ(*frmMainForm.lblPlay.text, "1.B");
}

TEST_F(HelpBox, ClosesWhenAnyOtherWindowTakesTheFocus) {
    OpenFromPlays(0);
    QWidget stranger;
    GiveFocusTo(stranger);
    EXPECT_FALSE(frmHelpBox.window.IsLoaded());
    EXPECT_TRUE(stranger.isActiveWindow());
}

TEST_F(HelpBox, AModalOneClosesAsWellAndTheProgramGoesOn) {
    QWidget stranger;
    OpenFromMain("mnuHelpArray(0)", [&] {
        GiveFocusTo(stranger);
        EXPECT_FALSE(frmHelpBox.window.IsLoaded());
    });
    EXPECT_FALSE(frmHelpBox.window.IsLoaded());
    stranger.close();
    OpenFromMain("mnuHelpArray(2)", [&] {
        EXPECT_EQ(Heading(), "About Ballhaven");
        Box().close();
    });
}

TEST_F(HelpBox, ClosesByEscape) {
    OpenFromPlays(0);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(frmHelpBox.window.IsLoaded());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&PlaySlips()));
}

TEST_F(HelpBox, TheTextIsBuiltAnewEachTime) {
    OpenFromPlays(0);
    Press(Qt::Key_End);
    frmPlays.window.ShowInFront();
    Settle();
    ASSERT_FALSE(frmHelpBox.window.IsLoaded());
    OpenFromPlays(2);
    EXPECT_EQ(Heading(), "About Ballhaven");
    OpenFromPlays(0);
    EXPECT_EQ(Heading(), "Ballhaven Instructions");
    EXPECT_EQ(Text().verticalScrollBar()->value(), 0);
}

TEST_F(HelpBox, ClosesWithTheProgram) {
    OpenFromPlays(0);
    frmMainForm.mnuFileArray[2].click();
    Settle();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
}

TEST_F(HelpBox, TheButtonPrintsWhatTheBoxHoldsUnderItsHeading) {
    OpenFromPlays(2);
    frmHelpBox.lblLabel.text = "Some heading";
    frmHelpBox.txtText.text = " Some text\r\n";
    Click("cmdHelp");
    ASSERT_EQ(printer.jobs.size(), 1U);
    ASSERT_EQ(printer.jobs[0].size(), 1U);
    EXPECT_EQ(printer.jobs[0][0].front().text, "Some heading");
    EXPECT_NE(printer.AsText().find("\n       Some text\n"), std::string::npos);
}

TEST_F(HelpBox, AChangedHeadingIsPrintedOnEveryPage) {
    OpenFromPlays(0);
    frmHelpBox.lblLabel.text = "Some heading";
    Click("cmdHelp");
    ASSERT_EQ(printer.jobs.size(), 1U);
    EXPECT_GT(printer.jobs[0].size(), 4U);
    for (const support::PrinterRecord::Page& page : printer.jobs[0]) {
        EXPECT_EQ(page.front().text, "Some heading");
    }
}

TEST_F(HelpBox, TheInstructionsArePrintedWithTheirHeadingOnEveryPage) {
    OpenFromMain("mnuHelpArray(0)", [&] {
        Click("cmdHelp");
        EXPECT_TRUE(frmHelpBox.window.IsLoaded());
        Box().close();
    });
    ASSERT_EQ(printer.jobs.size(), 1U);
    EXPECT_GT(printer.jobs[0].size(), 4U);
    for (const support::PrinterRecord::Page& page : printer.jobs[0]) {
        EXPECT_EQ(page.front().text, "Ballhaven Instructions");
    }
}

TEST_F(HelpBox, TheHourglassIsOnWhileItPrintsAndOffAfterwards) {
    OpenFromPlays(2);
    bool waited = false;
    whilePrinting = [&] { waited = QApplication::overrideCursor() != nullptr; };
    Click("cmdHelp");
    EXPECT_TRUE(waited);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(HelpBox, APrinterThatIsNotReadySaysNothing) {
    OpenFromPlays(2);
    printer.FailFrom(1);
    Click("cmdHelp");
    EXPECT_TRUE(printer.jobs.empty());
    EXPECT_TRUE(frmHelpBox.window.IsLoaded());
}

TEST_F(HelpBox, AWindowThatComesUpWhileItPrintsClosesItAndThePagesComeOut) {
    QWidget stranger;
    OpenFromMain("mnuHelpArray(2)", [&] {
        whilePrinting = [&] {
            GiveFocusTo(stranger);
            EXPECT_FALSE(frmHelpBox.window.IsLoaded());
        };
        Click("cmdHelp");
    });
    EXPECT_FALSE(frmHelpBox.window.IsLoaded());
    ASSERT_EQ(printer.jobs.size(), 1U);
    EXPECT_EQ(printer.jobs[0][0].front().text, "About Ballhaven");
    stranger.close();
}

}  // namespace
}  // namespace ballhaven
