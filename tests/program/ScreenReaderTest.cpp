#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "support/qt/RunningProgram.h"

#include <QAccessible>
#include <QTest>

#include <chrono>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using Names = std::vector<std::string>;

/// What a screen reader is told of the program's windows.
class ScreenReader : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.gameType = 1,
               .bonusPicks = 1,
               .draws = {{"01/01/1990", {1, 2, 3, 4, 5, 6, 7}}, {"01/02/1990", {1, 2, 3, 4, 5, 6, 7}}}});
        Start();
    }

    [[nodiscard]] QAccessibleInterface& Told(const char* name) const {
        return *QAccessible::queryAccessibleInterface(&Find(name));
    }
    [[nodiscard]] std::string Name(const char* name) const { return Told(name).text(QAccessible::Name).toStdString(); }

    /// The name of the label that is told with a control.
    [[nodiscard]] std::string LabelOf(const char* name) const {
        const auto labels = Told(name).relations(QAccessible::Label);
        return labels.size() == 1 ? labels[0].first->text(QAccessible::Name).toStdString() : "";
    }

    /// The days of the open calendar that are told as the selected ones.
    [[nodiscard]] Names SelectedDays() const {
        Names selected;
        for (int cell = 0; cell < Told("surface").childCount(); ++cell) {
            const QAccessibleInterface& day = *Told("surface").child(cell);
            if (day.state().selected) {
                selected.push_back(day.text(QAccessible::Name).toStdString());
            }
        }
        return selected;
    }

    /// Clicks the day of a name in the open calendar, in the place that is told of it.
    void ClickDay(const QString& name) const {
        for (int cell = 0; cell < Told("surface").childCount(); ++cell) {
            const QAccessibleInterface& day = *Told("surface").child(cell);
            if (day.text(QAccessible::Name) == name) {
                QTest::mouseClick(&Find("surface"), Qt::LeftButton, {},
                                  Find("surface").mapFromGlobal(day.rect().center()));
                return;
            }
        }
        ADD_FAILURE() << "no such day: " << name.toStdString();
    }
};

TEST_F(ScreenReader, EveryListIsLabelledByItsLabel) {
    const std::pair<const char*, const char*> lists[] = {
        {"cboList(0)", "Select Game"}, {"cboList(1)", "Select History Set"}, {"cboList(2)", "Select Hot Table"}};
    for (const auto& [list, label] : lists) {
        EXPECT_EQ(LabelOf(list), label);
    }
}

TEST_F(ScreenReader, TheQuestionsOfTheGameDialogLabelTheirListsAndTheNameItsBox) {
    InGameDialog([this] {
        EXPECT_EQ(LabelOf("txtNewGame(0)"), "Enter a name for this game:");
        const std::pair<const char*, const char*> lists[] = {
            {"cboCombo(0)", "Select type of game:"},
            {"cboCombo(1)", "How many Main numbers or cards are drawn each game?"}};
        for (const auto& [list, question] : lists) {
            EXPECT_EQ(LabelOf(list), question);
        }
        ClickToClose("cmdNewGame(0)");
    });
    ChooseFromMenu("mnuEdit", "mnuEditArray(2)");
}

TEST_F(ScreenReader, TheShownPlayIsReadAsText) {
    EXPECT_EQ(Told("lblPlay").role(), QAccessible::StaticText);
    EXPECT_EQ(Name("lblPlay"), "1.A");
}

TEST_F(ScreenReader, ASwatchIsNamedByItsColour) {
    const char* const colours[] = {"Magenta", "Yellow", "Red",   "Cyan", "Green",
                                   "Teal",    "Purple", "Olive", "Blue", "Black"};
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(Name(("lblColor(" + std::to_string(i) + ")").c_str()), colours[i]);
    }
}

TEST_F(ScreenReader, TheKeyboardGoesAsTheEyeDoes) {
    const char* const stops[] = {"cboList(0)",     "cboList(1)",      "cboList(2)",     "optHot(2)",
                                 "cmdPlayBttn(2)", "cmdPlayBttn(0)",  "cmdPlayBttn(1)", "grdPlay.pane(0)",
                                 "grdHot.pane(0)", "grdHist.pane(1)", "cmdColorHist",   "cmdColor(0)",
                                 "cmdColor(1)",    "cmdButton(1)",    "cmdButton(10)"};
    Find("cboList(0)").setFocus();
    for (const char* stop : stops) {
        ASSERT_EQ(QApplication::focusWidget()->objectName().toStdString(), stop);
        // Within a table the key goes on through its columns.
        for (int columns = 0; columns < 12 && QApplication::focusWidget() == &Find(stop); ++columns) {
            Press(Qt::Key_Tab);
        }
    }
}

TEST_F(ScreenReader, TheLogIsOneTable) {
    QAccessibleTableInterface* const log = Told("grdHist").tableInterface();
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(log->columnCount(), 11);
    EXPECT_EQ(log->columnDescription(0), QStringLiteral("Date"));
    EXPECT_EQ(log->columnDescription(1), QStringLiteral("Pick 1"));
    EXPECT_EQ(log->columnDescription(7), QStringLiteral("Bonus 1"));
    EXPECT_EQ(log->rowDescription(0), QStringLiteral("01/01/1990"));
    EXPECT_EQ(log->cellAt(0, 7)->text(QAccessible::Name), QStringLiteral("7"));
}

TEST_F(ScreenReader, TheCalendarTellsItsDaysAndTheSelectedOne) {
    platform::services.today = [] { return std::chrono::year{1990} / std::chrono::January / 20; };
    InModal(ahcCalendar.window, [this] {
        EXPECT_EQ(Told("surface").childCount(), 42);
        EXPECT_EQ(SelectedDays(), Names{"20 January 1990"});
        ClickDay(QStringLiteral("12 January 1990"));
        EXPECT_EQ(SelectedDays(), Names{"12 January 1990"});
        ClickToClose("cmdCal(0)");
    });
    Click("cmdButton(2)");
}

TEST_F(ScreenReader, OnlyATableThatHasTheKeyboardTellsOfACellWithIt) {
    const auto cellHasIt = [this](const char* pane) {
        return Told(pane).tableInterface()->cellAt(0, 2)->state().focused == 1;
    };
    frmMainForm.grdHot.GoTo(0, 2);
    frmMainForm.grdPlay.GoTo(0, 2);
    Find("grdHot.pane(0)").setFocus();
    EXPECT_TRUE(cellHasIt("grdHot.pane(0)"));
    EXPECT_FALSE(cellHasIt("grdPlay.pane(0)"));
    ClickCell("grdHist", 0, 1);
    EXPECT_FALSE(cellHasIt("grdHot.pane(0)"));
}

TEST_F(ScreenReader, TheHotTableIsCalledByItsCaption) {
    for (const char* const part : {"grdHot", "grdHot.pane(0)"}) {
        EXPECT_EQ(Name(part), "Hot Numbers in last 2 games");
    }
    ChooseEntry("cboList(2)", 1);
    for (const char* const part : {"grdHot", "grdHot.pane(0)"}) {
        EXPECT_EQ(Name(part), "Hot Pairs in last 2 games");
    }
}

TEST_F(ScreenReader, TheOptionsAreRadioButtons) {
    for (const char* const option : {"optHot(0)", "optHot(1)", "optHot(2)"}) {
        EXPECT_EQ(Told(option).role(), QAccessible::RadioButton);
    }
}

TEST_F(ScreenReader, ABoardsCellTellsItsLineItsPickAndWhetherItIsChosen) {
    ChooseFromMenu("mnuView", "mnuViewArray(3)");
    ClickCell("grdPlays(0)", 1, 9 + 7);
    const auto* const board = Told("grdPlays(0).pane(1)").tableInterface();
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->cellAt(1, 7)->text(QAccessible::Name), "Line B, 17, chosen");
    EXPECT_EQ(board->cellAt(1, 6)->text(QAccessible::Name), "Line B, 16");
    EXPECT_EQ(Name("grdPlays(0).pane(1)"), "Line B");
    EXPECT_EQ(Name("cmdErasePlay(2)"), "Erase line B");
}

TEST_F(ScreenReader, TheWheelsTellTheirPicksAndWhatTheirBoxesAreFor) {
    Click("cmdButton(7)");
    ClickCell("grdShuffle", 1, 7);
    const auto* const board = Told("grdShuffle.pane(0)").tableInterface();
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->cellAt(1, 7)->text(QAccessible::Name), "17, chosen");
    EXPECT_EQ(board->cellAt(1, 6)->text(QAccessible::Name), "16");
    EXPECT_EQ(Name("grdShuffle"), "Chosen picks");
    EXPECT_EQ(Name("txtShuffle(0)"), "Total plays of a shuffle");
    EXPECT_EQ(Name("txtShuffle(1)"), "Total plays of a partial wheel");
}

TEST_F(ScreenReader, InTheWheelsTheKeyboardGoesAsTheEyeDoes) {
    Click("cmdButton(7)");
    const char* const stops[] = {"grdShuffle.pane(0)", "cmdErasePlay(5)", "optShuffle(0)", "txtShuffle(0)",
                                 "cmdButton",          "cmdStart",        "cmdClose"};
    for (const char* stop : stops) {
        ASSERT_EQ(QApplication::focusWidget()->objectName().toStdString(), stop);
        // Within a board the key goes on through its columns.
        for (int columns = 0; columns < 12 && QApplication::focusWidget() == &Find(stop); ++columns) {
            Press(Qt::Key_Tab);
        }
    }
}

TEST_F(ScreenReader, MenuSeparatorsSayNothing) {
    int separators = 0;
    for (const char* menu : {"mnuFile", "mnuEdit", "mnuView", "mnuTools", "mnuHelp"}) {
        const QAccessibleInterface& entries = Told(menu);
        for (int i = 0; i < entries.childCount(); ++i) {
            const bool isSeparator = entries.child(i)->role() == QAccessible::Separator;
            EXPECT_EQ(entries.child(i)->text(QAccessible::Name).isEmpty(), isSeparator) << menu << ' ' << i;
            separators += isSeparator ? 1 : 0;
        }
    }
    EXPECT_EQ(separators, 6);
}

}  // namespace
}  // namespace ballhaven
