#include "wheels/ShuffleWindow.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "forms/ShuffleForm.h"
#include "platform/Services.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "support/Plays.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <initializer_list>
#include <string>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using platform::buttonFaceColor;
using platform::white;
using support::PicksText;
using support::PlaysInUse;
using support::Settle;
using support::StoredGame;

const QColor black(0, 0, 0);
const QColor paper(255, 255, 255);
const QColor lightGrey(0xC0, 0xC0, 0xC0);
const QColor paleBlue(0xC0, 0xC0, 0xFF);

const std::string clearFirst = "Would you like to clear all of the Play Slips first?";
const std::string badTotal = "Total Plays:\n\nEnter a number from 1 To 5000";

constexpr const char* board = "grdShuffle";
constexpr const char* shuffleBox = "txtShuffle(0)";
constexpr const char* partialBox = "txtShuffle(1)";

class WheelAndShuffle : public support::RunningProgram {
  protected:
    /// Starts with a game and opens the window by the menu.
    void Open(const StoredGame& game) {
        Store(game);
        Start();
        OpenByMenu();
    }

    void OpenByMenu() {
        ChooseFromMenu("mnuTools", "mnuToolArray(0)");
        ASSERT_TRUE(frmShuffle.window.IsLoaded());
        ASSERT_TRUE(QTest::qWaitFor([] { return !frmShuffle.loading; }));
        Settle();
    }

    /// Clicks the main cells, counted from 0, of a game of numbers.
    void ClickCells(std::initializer_list<int> cells) {
        for (const int cell : cells) {
            ClickCell(board, cell / 9, cell % 9);
        }
    }

    [[nodiscard]] QColor ColorOf(int cell) const { return CellColor(board, cell / 9, cell % 9); }

    void TypeTotal(const char* box, const char* text) {
        Click(box);
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
    }

    [[nodiscard]] std::string TextIn(const char* box) const { return Find<QLineEdit>(box).text().toStdString(); }

    static int PicksChosen() {
        const auto chosen = appState.ShuffleTable.Slots(mainPicks);
        return static_cast<int>(std::ranges::count_if(chosen, [](std::int16_t pick) { return pick >= 0; }));
    }

    static std::string Result() {
        return *frmShuffle.lblShuffle[0].text + " to " + *frmShuffle.lblShuffle[1].text + ", " +
               *frmShuffle.lblShuffle[2].text;
    }

    static std::string ChosenOption() {
        std::string chosen;
        for (const platform::OptionButton& option : frmShuffle.optShuffle) {
            chosen += option.IsChosen() ? '1' : '0';
        }
        return chosen;
    }

    void ExpectTold(const std::string& text) { boxes.Expect("Ballhaven", text, BoxButtons::Ok, BoxIcon::None); }
    void ExpectAsked(const std::string& text, BoxAnswer answer) {
        boxes.Expect("Ballhaven", text, BoxButtons::YesNo, BoxIcon::Question, answer);
    }

    [[nodiscard]] std::string StoredPicks(int record) const {
        return directory.Read("SHUFFLE.CDB").substr(static_cast<std::size_t>(320 * (record - 1)), 12);
    }
    [[nodiscard]] std::string StoredOption(int slot) const {
        return directory.Read("SHUFFLE.CDB").substr(static_cast<std::size_t>(320 * (slot - 1) + 299), 2);
    }

    static std::string Main(int first, int last) { return PicksText(appState.PlayTable, mainPicks, first, last); }

    static bool IsInFront(const platform::Window& window) {
        const auto* const widget = dynamic_cast<QWidget*>(window.view);
        return widget != nullptr && QTest::qWaitFor([widget] { return widget->isActiveWindow(); });
    }
};

// Opening and closing

TEST_F(WheelAndShuffle, OpensWithTheBoardOfTheGameAndWithoutAResult) {
    Open({.high = 49});
    EXPECT_TRUE(appState.shuffleWindowOpen);
    EXPECT_EQ(RowsShown(board), 12);
    EXPECT_EQ(CellText(board, 0, 0), "1");
    EXPECT_EQ(CellText(board, 5, 3), "49");
    EXPECT_EQ(ColorOf(0), paper);
    EXPECT_EQ(Result(), " to , ");
}

TEST_F(WheelAndShuffle, OpensFromEachOfItsEntries) {
    Store({.high = 49});
    Start();
    const auto opens = [this](const std::function<void()>& open) {
        open();
        Settle();
        EXPECT_TRUE(IsInFront(frmShuffle.window));
        Click("cmdClose");
        EXPECT_FALSE(frmShuffle.window.IsLoaded());
        EXPECT_FALSE(appState.shuffleWindowOpen);
    };
    opens([this] { ChooseFromMenu("mnuTools", "mnuToolArray(0)"); });
    opens([this] { Click("cmdButton(7)"); });
    Click("cmdButton(14)");
    opens([this] { Click("cmdToolbar(3)"); });
    opens([] { frmPlays.mnuToolArray[0].click(); });
}

TEST_F(WheelAndShuffle, AnOpenWindowComesToTheFrontAsItIs) {
    Open({.high = 49});
    TypeTotal(shuffleBox, "12");
    frmMainForm.window.ShowInFront();
    ASSERT_TRUE(IsInFront(frmMainForm.window));
    Click("cmdButton(7)");
    EXPECT_TRUE(IsInFront(frmShuffle.window));
    EXPECT_EQ(TextIn(shuffleBox), "12");
}

TEST_F(WheelAndShuffle, AMinimisedWindowIsRestored) {
    Open({.high = 49});
    frmShuffle.window.SetState(platform::WindowState::Minimised);
    ChooseFromMenu("mnuTools", "mnuToolArray(0)");
    EXPECT_EQ(frmShuffle.window.State(), platform::WindowState::Normal);
}

TEST_F(WheelAndShuffle, AGameThatHasNotBeenSetUpHasAnEmptyBoard) {
    Store({.slot = 1, .name = "un-defined"});
    ExpectAsked("You need to configure game number 1.\nWould you like to set up the game now?", BoxAnswer::No);
    Start();
    OpenByMenu();
    EXPECT_EQ(frmShuffle.grdShuffle.RowsRead(), 0);
    ClickAt(board, {20, 20});
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), -1);
}

TEST_F(WheelAndShuffle, InACardGameWithABonusTheRowBetweenThePicksIsPaleBlueWithoutLetters) {
    Open({.gameType = 4, .mainPicks = 5, .bonusPicks = 1, .high = 52, .bonusHigh = 52});
    EXPECT_EQ(RowsShown(board), 24);
    EXPECT_EQ(CellText(board, 0, 0), "Ah");
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(CellText(board, 11, column), "") << column;
        EXPECT_EQ(CellColor(board, 11, column), paleBlue) << column;
    }
    ClickCell(board, 12, 1);
    EXPECT_EQ(appState.ShuffleTable(bonusPicks, 1), 1);
}

// Choosing picks

TEST_F(WheelAndShuffle, ClicksChooseAndTakeOff) {
    Open({.high = 49});
    ClickCells({6, 3});
    EXPECT_EQ(ColorOf(6), black);
    EXPECT_EQ(ColorOf(3), black);
    EXPECT_EQ(StoredPicks(1), "6  3        ");
    ClickCells({6});
    EXPECT_EQ(ColorOf(6), paper);
    EXPECT_EQ(StoredPicks(1), "3           ");
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(WheelAndShuffle, AClickBesideTheCellsChoosesNothingAndTakesNothingOff) {
    Open({.high = 49});
    const QPoint beside(40, Find(board).height() - 1);
    ClickAt(board, beside);
    EXPECT_EQ(PicksChosen(), 0);
    ClickCells({6});
    ClickAt(board, beside);
    ClickAt(board, {40, 0});
    EXPECT_EQ(PicksChosen(), 1);
    EXPECT_EQ(ColorOf(6), black);
}

TEST_F(WheelAndShuffle, AMoveWithoutAClickChoosesNothing) {
    Open({.high = 49});
    frmShuffle.grdShuffle.GoTo({0, 2, 2});
    frmShuffle.grdShuffle.settled();
    Press(Qt::Key_Down);
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), -1);
}

TEST_F(WheelAndShuffle, ABonusNumberOfTheSamePoolIsGreyAmongTheMainOnesUntilItIsTakenOff) {
    Open({.gameType = 1, .mainPicks = 5, .bonusPicks = 1, .high = 45, .bonusHigh = 45});
    ClickCells({108 + 6});
    EXPECT_TRUE(CellHasColor(board, 0, 6, lightGrey));
    ClickCells({6});
    EXPECT_EQ(ColorOf(6), paper);
    ClickCells({108 + 6, 6});
    EXPECT_EQ(ColorOf(6), black);
    EXPECT_TRUE(CellHasColor(board, 12, 6, lightGrey));
}

TEST_F(WheelAndShuffle, InAGameOfOrderPicksHaveTheColoursOfTheirSlots) {
    Open({.high = 49, .inOrder = true});
    ClickCells({0, 3});
    EXPECT_EQ(ColorOf(0), black);
    EXPECT_EQ(ColorOf(3), QColor(0, 0x80, 0));
}

TEST_F(WheelAndShuffle, TheEraserTakesAllPicksOffAndLeavesOptionAndTotal) {
    Open({.high = 49});
    ClickCells({6, 48});
    Click("optShuffle(1)");
    TypeTotal(partialBox, "12");
    Click("cmdErasePlay(5)");
    EXPECT_EQ(ColorOf(6), paper);
    EXPECT_EQ(StoredPicks(1), "            ");
    EXPECT_EQ(ChosenOption(), "010");
    EXPECT_EQ(TextIn(partialBox), "12");
}

// Options and boxes

TEST_F(WheelAndShuffle, ItOpensOnShuffleWithItsBoxAlone) {
    Open({.high = 49});
    EXPECT_EQ(ChosenOption(), "100");
    EXPECT_TRUE(Find(shuffleBox).isEnabled());
    EXPECT_FALSE(Find(partialBox).isEnabled());
    EXPECT_EQ(*frmShuffle.txtShuffle[0].background, white);
    EXPECT_EQ(*frmShuffle.txtShuffle[1].background, buttonFaceColor);
    EXPECT_FALSE(Find(shuffleBox).hasFocus());
}

TEST_F(WheelAndShuffle, AnOptionGivesItsBoxTheKeyboardAndEmptiesTheOther) {
    Open({.high = 49});
    TypeTotal(shuffleBox, "12");
    Click("optShuffle(1)");
    EXPECT_EQ(TextIn(shuffleBox), "");
    EXPECT_FALSE(Find(shuffleBox).isEnabled());
    EXPECT_EQ(*frmShuffle.txtShuffle[0].background, buttonFaceColor);
    EXPECT_EQ(*frmShuffle.txtShuffle[1].background, white);
    EXPECT_TRUE(Find(partialBox).hasFocus());
    Type("34");
    EXPECT_EQ(TextIn(partialBox), "34");
    Click("optShuffle(0)");
    EXPECT_EQ(TextIn(partialBox), "");
    EXPECT_TRUE(Find(shuffleBox).hasFocus());
}

TEST_F(WheelAndShuffle, TheFullWheelHasNoBox) {
    Open({.high = 49});
    TypeTotal(shuffleBox, "12");
    Click("optShuffle(2)");
    for (const char* box : {shuffleBox, partialBox}) {
        EXPECT_FALSE(Find(box).isEnabled()) << box;
        EXPECT_EQ(TextIn(box), "") << box;
    }
    EXPECT_EQ(*frmShuffle.txtShuffle[0].background, buttonFaceColor);
    EXPECT_EQ(*frmShuffle.txtShuffle[1].background, buttonFaceColor);
}

TEST_F(WheelAndShuffle, EnterInABoxDoesNothing) {
    Open({.high = 49});
    int beeps = 0;
    platform::services.beep = [&beeps] { ++beeps; };
    ClickCells({0, 1, 2, 3, 4, 5, 6});
    TypeTotal(shuffleBox, "12");
    Press(Qt::Key_Return);
    Press(Qt::Key_Enter);
    EXPECT_EQ(beeps, 0);
    EXPECT_EQ(TextIn(shuffleBox), "12");
    EXPECT_TRUE(Find(shuffleBox).hasFocus());
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
}

TEST_F(WheelAndShuffle, ABoxTakesAnything) {
    Open({.high = 49});
    TypeTotal(shuffleBox, "-3 x,7");
    EXPECT_EQ(TextIn(shuffleBox), "-3 x,7");
}

TEST_F(WheelAndShuffle, ABoxOpensEmptyAgain) {
    Open({.high = 49});
    TypeTotal(shuffleBox, "12");
    Click("cmdClose");
    OpenByMenu();
    EXPECT_EQ(TextIn(shuffleBox), "");
}

TEST_F(WheelAndShuffle, TheOptionIsStoredAsSoonAsItIsChosen) {
    Open({.high = 49});
    EXPECT_EQ(StoredOption(1), "  ");
    Click("optShuffle(1)");
    EXPECT_EQ(StoredOption(1), "PW");
    Click("optShuffle(2)");
    EXPECT_EQ(StoredOption(1), "FW");
}

TEST_F(WheelAndShuffle, ClosingStoresTheOptionOnWhichItOpened) {
    Open({.high = 49});
    Click("cmdClose");
    EXPECT_EQ(StoredOption(1), "SH");
}

TEST_F(WheelAndShuffle, AGameWithoutABonusOpensOnTheStoredOption) {
    Store({.slot = 2, .name = "Other", .high = 49});
    Open({.slot = 1, .high = 49});
    for (const int option : {1, 2}) {
        Click(("optShuffle(" + std::to_string(option) + ")").c_str());
        ChooseEntry("cboList(0)", 1);
        EXPECT_FALSE(frmShuffle.window.IsLoaded());
        ChooseEntry("cboList(0)", 0);
        OpenByMenu();
        EXPECT_EQ(ChosenOption(), option == 1 ? "010" : "001");
        EXPECT_EQ(Find(partialBox).isEnabled(), option == 1);
        EXPECT_FALSE(Find(shuffleBox).isEnabled());
    }
}

// Not a bug: SHUFFLE-OPTION-BONUS-1 in docs/not-bugs.md.
TEST_F(WheelAndShuffle, QuirkShuffleOptionBonus1AGameWithABonusOpensOnShuffleWhateverWasChosen) {
    Store({.slot = 2, .name = "Other", .high = 49});
    Open({.slot = 1, .gameType = 2, .mainPicks = 5, .bonusPicks = 1, .high = 49, .bonusHigh = 9});
    Click("optShuffle(2)");
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(StoredOption(1), "FW");
    ChooseEntry("cboList(0)", 0);
    OpenByMenu();
    EXPECT_EQ(ChosenOption(), "100");
}

TEST_F(WheelAndShuffle, WithinOneVisitToAGameTheOptionStaysWithABonusToo) {
    Open({.gameType = 2, .mainPicks = 5, .bonusPicks = 1, .high = 49, .bonusHigh = 9});
    Click("optShuffle(2)");
    Click("cmdClose");
    OpenByMenu();
    EXPECT_EQ(ChosenOption(), "001");
}

// Runs

TEST_F(WheelAndShuffle, AFullWheelFillsTheSlipsAndTellsWhich) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({3, 1, 2});
    Click("optShuffle(2)");
    Click("cmdStart");
    EXPECT_EQ(Result(), "1.A to 1.C, 3");
    EXPECT_EQ(Main(1, 4), "3 1|3 2|1 2|");
    EXPECT_TRUE(appState.playsDirty);
    EXPECT_EQ(CellColor("grdPlay", 0, 3), black);
}

TEST_F(WheelAndShuffle, EachModeReadsItsOwnBox) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({0, 1, 2, 3});
    TypeTotal(shuffleBox, "7");
    Click("cmdStart");
    EXPECT_EQ(Result(), "1.A to 2.B, 7");
    Click("optShuffle(1)");
    Type("5");
    boxes.ExpectBeforeLoss(clearFirst, BoxIcon::Question, BoxAnswer::Yes);
    Click("cmdStart");
    EXPECT_EQ(Result(), "1.A to 1.E, 5");
    EXPECT_EQ(Main(1, 6), "0 1|0 3|1 3|0 2|1 2|");
}

TEST_F(WheelAndShuffle, TheHourglassStandsDuringARun) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({0, 1, 2});
    TypeTotal(shuffleBox, "2");
    bool waited = false;
    platform::services.drawByChance = [&waited, number = 0.0F]() mutable {
        waited = waited || QApplication::overrideCursor() != nullptr;
        return number = number < 0.5F ? number + 0.34F : 0.0F;
    };
    Click("cmdStart");
    EXPECT_TRUE(waited);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(WheelAndShuffle, TheHourglassStandsWhileThePicksAreErasedAndWhileTheSlipsOpen) {
    Open({.high = 49});
    bool waited = false;
    platform::fileSystem.rename = [&waited](const std::string& from, const std::string& to) {
        waited = QApplication::overrideCursor() != nullptr;
        return platform::SystemFiles().rename(from, to);
    };
    Click("cmdErasePlay(5)");
    EXPECT_TRUE(waited);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    waited = false;
    frmPlays.window.layout = [&waited, layout = frmPlays.window.layout] {
        waited = QApplication::overrideCursor() != nullptr;
        layout();
    };
    Click("cmdButton");
    EXPECT_TRUE(waited);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(WheelAndShuffle, ARefusedTotalIsMarkedToBeTypedAnew) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({0, 1, 2});
    TypeTotal(shuffleBox, "many");
    ExpectTold(badTotal);
    Click("cmdStart");
    EXPECT_TRUE(Find(shuffleBox).hasFocus());
    EXPECT_EQ(Find<QLineEdit>(shuffleBox).selectedText(), "many");
    Type("3");
    EXPECT_EQ(TextIn(shuffleBox), "3");
    EXPECT_EQ(Result(), " to , ");
}

// Not a bug: TOTAL-BOX-1 in docs/not-bugs.md.
TEST_F(WheelAndShuffle, QuirkTotalBox1ARefusedTotalOfAPartialWheelIsNotMarked) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({0, 1, 2});
    Click("optShuffle(1)");
    Type("many");
    ExpectTold(badTotal);
    Click("cmdStart");
    EXPECT_TRUE(Find(partialBox).hasFocus());
    EXPECT_EQ(Find<QLineEdit>(partialBox).selectedText(), "");
    EXPECT_EQ(Find<QLineEdit>(partialBox).cursorPosition(), 0);
}

TEST_F(WheelAndShuffle, ARefusedRunLeavesTheResultOfTheOneBefore) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({0, 1, 2});
    TypeTotal(shuffleBox, "2");
    Click("cmdStart");
    ClickCells({1});
    ExpectTold("You need to select at least 3 main picks to shuffle or wheel.");
    Click("cmdStart");
    EXPECT_EQ(Result(), "1.A to 1.B, 2");
}

TEST_F(WheelAndShuffle, AFullWheelThatWasDeclinedBlanksTheResult) {
    Open({.mainPicks = 6, .high = 49});
    ClickCells({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
    TypeTotal(shuffleBox, "2");
    Click("cmdStart");
    EXPECT_EQ(Result(), "1.A to 1.B, 2");
    Click("optShuffle(2)");
    boxes.ExpectBeforeLoss(clearFirst, BoxIcon::Question, BoxAnswer::Yes);
    ExpectAsked(
        "The number of plays required to do a full wheel\nexceeds the total number of plays allowed.\nDo you wish to "
        "continue?",
        BoxAnswer::No);
    Click("cmdStart");
    EXPECT_EQ(Result(), " to , ");
}

TEST_F(WheelAndShuffle, TheResultIsBlankAtTheNextOpening) {
    Open({.mainPicks = 2, .high = 49});
    ClickCells({0, 1, 2});
    TypeTotal(shuffleBox, "2");
    Click("cmdStart");
    Click("cmdClose");
    OpenByMenu();
    EXPECT_EQ(Result(), " to , ");
}

// With the Play Slips window

TEST_F(WheelAndShuffle, PlaySlipsOpensTheSlipsAndBringsThemToTheFront) {
    Open({.high = 49});
    Click("cmdButton");
    EXPECT_TRUE(appState.playsWindowOpen);
    EXPECT_TRUE(IsInFront(frmPlays.window));
    frmPlays.window.SetState(platform::WindowState::Minimised);
    frmShuffle.window.ShowInFront();
    ASSERT_TRUE(IsInFront(frmShuffle.window));
    Click("cmdButton");
    EXPECT_EQ(frmPlays.window.State(), platform::WindowState::Normal);
    EXPECT_TRUE(IsInFront(frmPlays.window));
}

TEST_F(WheelAndShuffle, OpenSlipsShowTheNewPlays) {
    Open({.mainPicks = 2, .high = 49});
    Click("cmdButton");
    frmPlays.cmdScrollPlaySlips[1].click();
    frmPlays.cmdScrollPlaySlips[1].click();
    EXPECT_EQ(*frmPlays.lblPlaySlip.text, " 3 Play Slip  ");
    ClickCells({0, 3, 6});
    Click("optShuffle(2)");
    Click("cmdStart");
    EXPECT_EQ(*frmPlays.lblPlaySlip.text, " 1 Play Slip  ");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, 0), black);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, 9 + 6), black);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, 9 + 3), paper);
}

// Not a bug: SLIP-0-1 in docs/not-bugs.md.
TEST_F(WheelAndShuffle, QuirkSlip01SlipZeroIsEmptyAndTakesNoPicks) {
    Open({.mainPicks = 1, .high = 49});
    Click("cmdButton");
    appState.currentSlip = 0;
    frmPlays.grdPlays[0].ReadAgain();
    ClickCell("grdPlays(0)", 0, 3);
    Click("cmdErasePlay(1)");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
    support::PutPicks(appState.PlayTable, mainPicks, 1, {7});
    EXPECT_EQ(CellText("grdPlays(0)", 0, 3), "4");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, 3), paper);
    const PlayPicks before = appState.PlayTable;
    boxes.ExpectBeforeLoss("Erase Play Slip # 0?", BoxIcon::Question, BoxAnswer::Yes);
    Click("cmdErasePlay(0)");
    EXPECT_TRUE(appState.PlayTable == before);
    Click("cmdScrollPlaySlips(1)");
    EXPECT_EQ(*frmPlays.lblPlaySlip.text, " 1 Play Slip  ");
}

// Other games, and the end

TEST_F(WheelAndShuffle, AnotherGameClosesItAndHasItsOwnPicks) {
    Store({.slot = 2, .name = "Other", .high = 49});
    Open({.slot = 1, .high = 49});
    ClickCells({6, 3});
    ChooseEntry("cboList(0)", 1);
    EXPECT_FALSE(frmShuffle.window.IsLoaded());
    EXPECT_FALSE(appState.shuffleWindowOpen);
    OpenByMenu();
    EXPECT_EQ(ColorOf(6), paper);
    ChooseEntry("cboList(0)", 0);
    OpenByMenu();
    EXPECT_EQ(ColorOf(6), black);
    EXPECT_EQ(ColorOf(3), black);
}

TEST_F(WheelAndShuffle, ADeletedGameClosesItAndLosesItsPicks) {
    Open({.high = 49});
    ClickCells({6, 48});
    boxes.ExpectBeforeLoss("Delete This Game?\n\nAll data will be ERASED!", BoxIcon::Critical, BoxAnswer::Yes);
    Click("cmdButton(11)");
    EXPECT_FALSE(frmShuffle.window.IsLoaded());
    EXPECT_EQ(StoredPicks(1), "            ");
}

TEST_F(WheelAndShuffle, TheGameDialogClosesItByItsSaveAndThePicksStay) {
    Open({.gameType = 2, .mainPicks = 5, .bonusPicks = 1, .high = 49, .bonusHigh = 9});
    ClickCells({6, 48, 108 + 3});
    InGameDialog([this] { ClickToClose("cmdNewGame(1)"); });
    Click("cmdButton(0)");
    EXPECT_FALSE(frmShuffle.window.IsLoaded());
    EXPECT_EQ(StoredPicks(1), "6  48       ");
    EXPECT_EQ(StoredPicks(21), "3           ");
}

TEST_F(WheelAndShuffle, ThePicksAreSavedBeforeTheDialogOfANewGameGoesOverTheRules) {
    Open({.gameType = 2, .mainPicks = 5, .bonusPicks = 1, .high = 49, .bonusHigh = 9});
    appState.ShuffleTable(bonusPicks, 1) = 5;
    InGameDialog([this] { ClickToClose("cmdNewGame(0)"); });
    Click("cmdButton(10)");
    EXPECT_EQ(StoredPicks(21), "5           ");
    EXPECT_TRUE(frmShuffle.window.IsLoaded());
}

TEST_F(WheelAndShuffle, NothingOfTheStoredPicksIsLostWhenANewGameIsCancelledBesideIt) {
    Open({.gameType = 2, .mainPicks = 5, .bonusPicks = 1, .high = 49, .bonusHigh = 9});
    ClickCells({6, 48, 108 + 3, 108 + 5});
    Click("optShuffle(2)");
    InGameDialog([this] { ClickToClose("cmdNewGame(0)"); });
    Click("cmdButton(10)");
    ASSERT_TRUE(frmShuffle.window.IsLoaded());
    const std::string stored = directory.Read("SHUFFLE.CDB");
    EXPECT_EQ(StoredPicks(1) + StoredPicks(21), "6  48       3  5        ");
    EXPECT_EQ(StoredOption(1), "FW");
    // The board is that of the slot which was to become the new game's, and takes no picks.
    frmShuffle.window.ShowInFront();
    ClickAt(board, {40, 20});
    Click("cmdClose");
    EXPECT_EQ(directory.Read("SHUFFLE.CDB"), stored);
    Close();
    EXPECT_EQ(directory.Read("SHUFFLE.CDB"), stored);
}

TEST_F(WheelAndShuffle, AGameLoadedAnewWhileItIsOpenKeepsItsPicks) {
    Open({.high = 49});
    appState.gameDialogMode = GameDialogMode::Altering;
    appState.ShuffleTable(mainPicks, 1) = 5;
    frmMainForm.window.ShowInFront();
    ASSERT_TRUE(IsInFront(frmMainForm.window));
    Settle();
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), 5);
    appState.gameDialogMode = GameDialogMode::None;
}

TEST_F(WheelAndShuffle, TheEndOfTheProgramLeavesWhatWasChosenInTheFileAndWritesNoMore) {
    Open({.high = 49});
    ClickCells({6, 48});
    const std::string before = directory.Read("SHUFFLE.CDB");
    WatchSaves();
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    EXPECT_EQ(saved, std::vector<std::string>{});
    EXPECT_EQ(directory.Read("SHUFFLE.CDB"), before);
    EXPECT_EQ(StoredPicks(1), "6  48       ");
}

}  // namespace
}  // namespace ballhaven
