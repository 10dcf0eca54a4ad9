#include "games/GameSlots.h"

#include "state/AppState.h"
#include "state/GameTable.h"
#include "support/qt/RunningProgram.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include <functional>
#include <utility>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;
using support::Padded;
using support::WithColumns;
using Texts = std::vector<std::string>;

constexpr int gameRecordBytes = 64;
constexpr const char* addGame = "mnuEditArray(0)";
constexpr const char* deleteGame = "mnuEditArray(1)";
constexpr const char* alterGame = "mnuEditArray(2)";
constexpr const char* save = "cmdNewGame(1)";
constexpr const char* cancel = "cmdNewGame(0)";

const std::vector<Draw> twoDraws = {{"01/05/1990", {1, 2, 3, 44, 45, 46}}, {"01/12/1990", {7, 8, 9, 10, 11, 12}}};

// The record of a slot that no game has been set up in, without its slot number.
//                                1         2         3         4         5         6
//                       1234567890123456789012345678901234567890123456789012345678901234
const std::string free = "  /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ";

std::string FreeRecord(int slot) {
    return WithColumns(free, {{1, Padded(std::to_string(slot), 2)}});
}

/// A number game of six picks as the dialog writes it over a free slot.
std::string SixOf49Record(int slot, const std::string& name) {
    return WithColumns(FreeRecord(slot), {{4, Padded(name, 20)}, {35, "49"}, {46, "06"}, {57, "-"}, {59, "00"}});
}

std::string SetUpQuestion(int slot) {
    return "You need to configure game number " + std::to_string(slot) + ".\nWould you like to set up the game now?";
}

/// The table of games with some of its records, from 1, replaced.
std::string WithRecords(std::string table, const std::map<int, std::string>& records) {
    for (const auto& [record, text] : records) {
        table.replace(static_cast<std::size_t>((record - 1) * gameRecordBytes), gameRecordBytes, text);
    }
    return table;
}

class GameSlots : public support::RunningProgram {
  protected:
    void Choose(const char* entry) const { ChooseFromMenu("mnuEdit", entry); }

    /// Chooses an entry of the Edit menu that opens the dialog, and acts in it.
    void InDialogOf(const char* entry, std::function<void()> acts) {
        InGameDialog(std::move(acts));
        Choose(entry);
    }

    /// In the dialog: makes the game one of six picks out of 49, and saves it.
    void SetUpSixOf49(const char* name) const {
        Type(name);
        ChooseEntry("cboCombo(1)", 5);
        ChooseEntry("cboCombo(6)", 48);
        ClickToClose(save);
    }

    void ExpectSetUpQuestion(int slot, BoxAnswer answer) {
        boxes.Expect("Ballhaven", SetUpQuestion(slot), BoxButtons::YesNo, BoxIcon::Question, answer);
    }

    void ExpectDeleteQuestion(BoxAnswer answer) {
        boxes.ExpectBeforeLoss("Delete This Game?\n\nAll data will be ERASED!", BoxIcon::Critical, answer);
    }

    [[nodiscard]] std::string GameTableFile() const { return directory.Read("LOTTOSYS"); }

    [[nodiscard]] std::string ShownGame() const {
        return Find<QComboBox>("cboList(0)").currentText().trimmed().toStdString();
    }
};

// The first run

TEST_F(GameSlots, AFirstRunLeadsThroughTheDialogToAGameInTheMainWindow) {
    ExpectSetUpQuestion(1, BoxAnswer::Yes);
    InGameDialog([this] {
        EXPECT_EQ(GameDialog().windowTitle(), QStringLiteral("Add a New Game"));
        EXPECT_EQ(Find<QLineEdit>("txtNewGame(0)").text(), QString());
        SetUpSixOf49("Saturday Lotto");
    });
    Start();
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(ShownGame(), "Saturday Lotto");
    EXPECT_EQ(Headings("grdHist").size(), 11U);
    EXPECT_EQ(appState.totalPicks, 6);
    EXPECT_EQ(appState.mainHigh, 49);
    std::map<int, std::string> records = {{1, Padded("01/1/1/000000", 64)}, {2, SixOf49Record(1, "Saturday Lotto")}};
    for (int slot = 2; slot <= 20; ++slot) {
        records[slot + 1] = FreeRecord(slot);
    }
    EXPECT_EQ(GameTableFile(), WithRecords(std::string(1344, ' '), records));
}

TEST_F(GameSlots, AFirstRunThatIsCancelledLeavesTheSlotUndefined) {
    ExpectSetUpQuestion(1, BoxAnswer::Yes);
    InGameDialog([this] { ClickToClose(cancel); });
    Start();
    EXPECT_EQ(ShownGame(), "un-defined");
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::None);
    EXPECT_EQ(RecordColumns(1, 1, 64), FreeRecord(1));
}

/// A kind of game, what is chosen for it, and the record that comes of it.
struct KindOfGame {
    int kind;
    std::string record;
    int totalPicks;
    const char* hotCaption;
};

class EachKindOfGame : public GameSlots, public testing::WithParamInterface<KindOfGame> {};

TEST_P(EachKindOfGame, IsSetUpAndShown) {
    ExpectSetUpQuestion(1, BoxAnswer::Yes);
    InGameDialog([this] {
        Type("Any");
        ChooseEntry("cboCombo(0)", GetParam().kind);
        ChooseEntry("cboCombo(1)", 3);
        if (HasBonus(GetParam().kind)) {
            ChooseEntry("cboCombo(2)", 1);
        }
        if (!IsCardGame(GetParam().kind)) {
            ChooseEntry("cboCombo(6)", 34);
        }
        ClickToClose(save);
    });
    Start();
    EXPECT_EQ(RecordColumns(1, 1, 64), GetParam().record);
    EXPECT_EQ(ShownGame(), "Any");
    EXPECT_EQ(appState.gameType, GetParam().kind);
    EXPECT_EQ(appState.totalPicks, GetParam().totalPicks);
    EXPECT_EQ(Find("optHot(0)").isVisible(), HasBonus(GetParam().kind));
    EXPECT_EQ(Entries("cboList(2)")[0], GetParam().hotCaption);
}

INSTANTIATE_TEST_SUITE_P(
    GameSlots, EachKindOfGame,
    testing::Values(KindOfGame{0, "1 /Any                   /010/0/1/35/ / /N/N/04/0/N /  /-/00/   ", 4, "Hot Numbers"},
                    KindOfGame{1, "1 /Any                   /010/1/1/35/ / /N/N/04/2/N /  /1/99/   ", 6, "Hot Numbers"},
                    KindOfGame{2, "1 /Any                   /010/2/1/35/ / /N/N/04/2/N /  /1/99/   ", 6, "Hot Numbers"},
                    KindOfGame{3, "1 /Any                   /010/3/1/52/ / /N/N/04/0/N /  /1/52/   ", 4, "Hot Cards"},
                    KindOfGame{4, "1 /Any                   /010/4/1/52/ / /N/N/04/2/N /  /1/52/   ", 6, "Hot Cards"},
                    KindOfGame{5, "1 /Any                   /010/5/1/52/ / /N/N/04/2/N /  /1/52/   ", 6, "Hot Cards"}),
    [](const auto& test) { return "Code" + std::to_string(test.param.kind); });

// Adding

/// Games in slots 1 and 2; slot 1 is shown.
class TwoGames : public GameSlots {
  protected:
    void SetUp() override {
        Store({.slot = 1, .name = "First game", .draws = twoDraws});
        Store({.slot = 2, .name = "Second game", .high = 39, .draws = {}});
        StorePlay(1, {0, 1, 2});
        StoreShown(1, 1);
    }
};

using QuirkLoadStoresUnderCurrent1 = TwoGames;
using QuirkGameCancel1 = TwoGames;
using QuirkGameFewerPicks1 = TwoGames;
using QuirkUndefinedName1 = TwoGames;

TEST_F(TwoGames, AddOnAShownFreeSlotWorksOnItAndNoOtherRecordChanges) {
    StoreShown(3, 1);
    ExpectSetUpQuestion(3, BoxAnswer::No);
    Start();
    const std::string before = GameTableFile();
    InDialogOf(addGame, [this] {
        EXPECT_EQ(appState.gameDialogSlot, 3);
        EXPECT_EQ(appState.gameDialogMode, GameDialogMode::Adding);
        SetUpSixOf49("Third game");
    });
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{4, SixOf49Record(3, "Third game")}}));
    EXPECT_EQ(ShownGame(), "Third game");
    EXPECT_EQ(appState.currentGame, 3);
}

TEST_F(TwoGames, AddOnAShownFreeSlotWorksOnItThoughItIsNotTheFirstFreeOne) {
    StoreShown(5, 1);
    ExpectSetUpQuestion(5, BoxAnswer::No);
    Start();
    const std::string before = GameTableFile();
    InDialogOf(addGame, [this] {
        EXPECT_EQ(appState.gameDialogSlot, 5);
        SetUpSixOf49("Fifth game");
    });
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{6, SixOf49Record(5, "Fifth game")}}));
    EXPECT_EQ(appState.currentGame, 5);
}

// Not a bug: LOAD-STORES-UNDER-CURRENT-1 in docs/not-bugs.md.
TEST_F(QuirkLoadStoresUnderCurrent1, AddWithAnotherGameShownTakesSlot3AndLeavesRecord2WithTheTextOfTheFreeSlot) {
    Start();
    const std::string before = GameTableFile();
    const std::string draws = directory.Read("GAME01.CDB");
    const std::string plays = directory.Read("PLAYS01.CDB");
    InDialogOf(addGame, [this] {
        EXPECT_EQ(appState.gameDialogSlot, 3);
        SetUpSixOf49("Third game");
    });
    EXPECT_EQ(GameTableFile(),
              WithRecords(before,
                          {{1, Padded("03/1/1/000000", 64)}, {2, FreeRecord(3)}, {4, SixOf49Record(3, "Third game")}}));
    EXPECT_EQ(directory.Read("GAME01.CDB"), draws);
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), plays);
    EXPECT_EQ(appState.currentGame, 3);
    EXPECT_EQ(ShownGame(), "Third game");
    EXPECT_EQ(RowsShown("grdHist"), 0);
    EXPECT_EQ(Entries("cboList(0)")[0], "un-defined          ");
}

TEST_F(QuirkLoadStoresUnderCurrent1, ACancelledAddLeavesRecord2SoTooAndTheListStillNamesTheOldGame) {
    Start();
    const std::string before = GameTableFile();
    InDialogOf(addGame, [this] { ClickToClose(cancel); });
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{2, FreeRecord(3)}}));
    EXPECT_EQ(ShownGame(), "First game");
}

TEST_F(QuirkLoadStoresUnderCurrent1, InAMendedFolderAnAddedGameLeavesTheOneThatIsShown) {
    MendFiles();
    Start();
    const std::string before = GameTableFile();
    InDialogOf(addGame, [this] { SetUpSixOf49("Third game"); });
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{1, "03/1/1/000000" + std::string(50, ' ') + "M"},
                                                    {4, SixOf49Record(3, "Third game")}}));
    EXPECT_EQ(ShownGame(), "Third game");
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::None);
    ChooseEntry("cboList(0)", 0);
    EXPECT_EQ(ShownGame(), "First game");
    EXPECT_EQ(RowsShown("grdHist"), 2);
}

TEST_F(QuirkGameCancel1, InAMendedFolderACancelledAddChangesNothingAndTheShownGameGoesOn) {
    MendFiles();
    Start();
    const std::string before = GameTableFile();
    InDialogOf(addGame, [this] { ClickToClose(cancel); });
    EXPECT_EQ(GameTableFile(), before);
    EXPECT_EQ(appState.totalPicks, 6);
    ChooseEntry("cboList(1)", 4);
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{2, WithColumns(RecordColumns(1, 1, 64), {{27, "050"}})}}));
    EXPECT_EQ(RecordColumns(1, 4, 10), "First game");
    EXPECT_EQ(RowsShown("grdHist"), 2);
}

// Not a bug: GAME-CANCEL-1 in docs/not-bugs.md.
TEST_F(QuirkGameCancel1, AfterACancelledAddTheWindowStillShowsTheOldGame) {
    Start();
    InDialogOf(addGame, [this] { ClickToClose(cancel); });
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::None);
    EXPECT_EQ(appState.currentGame, 1);
    EXPECT_EQ(appState.totalPicks, 10) << "of the free slot";
    EXPECT_EQ(RowsShown("grdHist"), 2);
    EXPECT_EQ(CellText("grdHist", 0, 4), "44");
    MainWindow().repaint();

    ClickCell("grdHist", 1, 2);
    Type("9");
    Press(Qt::Key_Return);
    ChooseEntry("cboList(2)", 4);
    ChooseEntry("cboList(0)", 1);
    std::vector<Draw> draws = twoDraws;
    draws[1].picks[1] = 9;
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(draws), directory.Read("GAME01.CDB")));
    EXPECT_EQ(appState.totalPicks, 6);
}

TEST_F(QuirkGameCancel1, AfterACancelledAddEveryTableSetAndOrderCanStillBeChosen) {
    Start();
    InDialogOf(addGame, [this] { ClickToClose(cancel); });
    for (const char* dateOrder : {"mnuViewArray(1)", "mnuViewArray(0)"}) {
        ChooseFromMenu("mnuView", dateOrder);
        for (const int set : {99, 0}) {
            ChooseEntry("cboList(1)", set);
            EXPECT_EQ(RowsShown("grdHist"), 2);
            for (int table = 4; table >= 0; --table) {
                ChooseEntry("cboList(2)", table);
                EXPECT_FALSE(MainWindow().grab().isNull());
            }
        }
    }
    EXPECT_TRUE(exitCodes.empty());
}

TEST_F(GameSlots, AGameThatIsNamedUndefinedIsAskedAboutInTheMainWindowUntilItHasAnotherName) {
    Store({.name = "First game"});
    Start();
    ExpectSetUpQuestion(1, BoxAnswer::Yes);
    ExpectSetUpQuestion(1, BoxAnswer::Yes);
    InGameDialog([this] {
        Usable<QLineEdit>("txtNewGame(0)").selectAll();
        Type("un-defined");
        ClickToClose(save);
    });
    for (const char* name : {"un-defined", "Second name"}) {
        InGameDialog([this, name] {
            EXPECT_EQ(Find<QLineEdit>("txtNewGame(0)").text(), QString());
            Type(name);
            ClickToClose(save);
        });
    }
    Choose(alterGame);
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(ShownGame(), "Second name");
}

TEST_F(GameSlots, TheNoHittersOfAGameWithoutDrawsAreDrawnWhileTheDialogIsOpenAndAfterItWasCancelled) {
    Store({.name = "No draws yet", .draws = {}});
    Start();
    ChooseEntry("cboList(2)", 4);
    EXPECT_EQ(RowsShown("grdHot"), 49);
    InDialogOf(alterGame, [this] {
        EXPECT_FALSE(MainWindow().grab().isNull());
        EXPECT_TRUE(exitCodes.empty());
        ClickToClose(cancel);
    });
    EXPECT_FALSE(MainWindow().grab().isNull());
    EXPECT_TRUE(exitCodes.empty());
}

/// A game whose picks are of all kinds: the lowest, the highest, and empty ones.
class AGameOfAllPicks : public GameSlots, public testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        Store({.name = "All picks",
               .gameType = 0,
               .mainPicks = 10,
               .low = 0,
               .high = 99,
               .draws = {{"01/05/1990", {0, 99, 53, 52, -1, 10, 20, 30, 40, 50}},
                         {"01/12/1990", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}}});
        StorePlay(1, {0, 99, 53});
        Start();
    }
};

TEST_P(AGameOfAllPicks, CanBeDrawnBetweenTheSaveOfAnotherKindAndTheSwitchToIt) {
    for (const int table : {0, 1, 4}) {
        ChooseEntry("cboList(2)", table);
        InDialogOf(alterGame, [this] {
            ChooseEntry("cboCombo(0)", GetParam());
            ClickToClose(save);
            EXPECT_EQ(appState.gameType, GetParam());
            EXPECT_FALSE(MainWindow().grab().isNull());
        });
        EXPECT_FALSE(MainWindow().grab().isNull());
        EXPECT_TRUE(exitCodes.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(GameSlots, AGameOfAllPicks, testing::Range(0, 6));

// Not a bug: UNDEFINED-NAME-1 in docs/not-bugs.md.
TEST_F(QuirkUndefinedName1, AGameWhoseNameBeginsWithUndefinedCountsAsAFreeSlot) {
    Store({.slot = 2, .name = "un-defined too", .draws = {}});
    StoreShown(1, 1);
    Start();
    InDialogOf(addGame, [this] {
        EXPECT_EQ(appState.gameDialogSlot, 2);
        ClickToClose(cancel);
    });
}

TEST_F(TwoGames, TheToolbarAddsDeletesAndAltersToo) {
    Start();
    ExpectDeleteQuestion(BoxAnswer::No);
    Click("cmdButton(11)");
    InGameDialog([this] {
        EXPECT_EQ(GameDialog().windowTitle(), QStringLiteral("Alter Game Configuration"));
        ClickToClose(cancel);
    });
    Click("cmdButton(0)");
    InGameDialog([this] {
        EXPECT_EQ(GameDialog().windowTitle(), QStringLiteral("Add a New Game"));
        ClickToClose(cancel);
    });
    Click("cmdButton(10)");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(GameSlots, WithTwentyGamesAddSaysSoAndChangesNothing) {
    for (int slot = 1; slot <= 20; ++slot) {
        Store({.slot = slot, .name = "Game " + std::to_string(slot), .draws = {}});
    }
    StoreShown(5, 1);
    Start();
    const auto files = directory.Files();
    boxes.Expect("Ballhaven", "You already have 20 games configured.\nYou must first delete an existing game.",
                 BoxButtons::Ok, BoxIcon::None);
    Choose(addGame);
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(directory.Files(), files);
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::None);
    EXPECT_EQ(appState.currentGame, 5);
}

// Altering

TEST_F(TwoGames, AlterWorksOnTheShownGameAndNoOtherRecordChanges) {
    StoreShown(2, 1);
    Start();
    const std::string before = GameTableFile();
    InDialogOf(alterGame, [this] {
        EXPECT_EQ(appState.gameDialogSlot, 2);
        EXPECT_EQ(appState.gameDialogMode, GameDialogMode::Altering);
        ChooseEntry("cboCombo(6)", 43);
        ClickToClose(save);
    });
    EXPECT_EQ(RecordColumns(2, 1, 64), "2 /Second game           /100/0/1/44/ / /N/N/06/0/N /  /-/00/   ");
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{3, RecordColumns(2, 1, 64)}}));
    EXPECT_EQ(appState.mainHigh, 44);
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::Altering);
}

// Not a bug: GAME-FEWER-PICKS-1 in docs/not-bugs.md.
TEST_F(QuirkGameFewerPicks1, ALowerMainCountKeepsTheFilesExtraColumnsUntilTheDrawsAreNextSaved) {
    Start();
    const std::string draws = directory.Read("GAME01.CDB");
    InDialogOf(alterGame, [this] {
        ChooseEntry("cboCombo(1)", 4);
        ClickToClose(save);
    });
    EXPECT_EQ(directory.Read("GAME01.CDB"), draws);
    EXPECT_EQ(CellText("grdHist", 0, 5), "45");
    EXPECT_EQ(CellText("grdHist", 0, 6), "");

    ClickCell("grdHist", 1, 1);
    Type("5");
    Press(Qt::Key_Return);
    ChooseEntry("cboList(0)", 1);
    EXPECT_TRUE(support::historyFileFormat.Same(
        support::HistoryFileOf({{"01/05/1990", {1, 2, 3, 44, 45}}, {"01/12/1990", {5, 8, 9, 10, 11}}}),
        directory.Read("GAME01.CDB")));
}

TEST_F(TwoGames, WhatIsDirtyIsSavedBeforeTheDialogOpens) {
    Start();
    boxes.ExpectBeforeLoss("Erase ALL Play Slips for this game?", BoxIcon::Question, BoxAnswer::Yes);
    Choose("mnuEditArray(7)");
    ClickCell("grdHist", 1, 1);
    Type("5");
    WatchSaves();
    InDialogOf(alterGame, [this] {
        ASSERT_EQ(saved, (Texts{"GAME01.CDB", "PLAYS01.CDB"}));
        ClickToClose(cancel);
    });
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(2 * 64 + 5, 2), " 5");
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), std::string(320000, ' '));
}

// Deleting

TEST_F(TwoGames, NoToTheQuestionDeletesNothing) {
    Start();
    const auto files = directory.Files();
    ExpectDeleteQuestion(BoxAnswer::No);
    Choose(deleteGame);
    EXPECT_EQ(directory.Files(), files);
    EXPECT_EQ(RowsShown("grdHist"), 2);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(TwoGames, DeleteKeepsTheFilesInFullSizeWithBlankRowsAndFreesTheSlot) {
    directory.Write("GAME01.CDB", WithColumns(directory.Read("GAME01.CDB"), {{12, "XY"}}));
    directory.Write("SHUFFLE.CDB", WithColumns(std::string(12800, ' '), {{1, "7  12"}, {321, "3  4"}}));
    Start();
    const std::string before = GameTableFile();
    ExpectDeleteQuestion(BoxAnswer::Yes);
    Choose(deleteGame);
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(directory.Read("GAME01.CDB").size(), 64064U);
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf({}), directory.Read("GAME01.CDB")));
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), std::string(320000, ' '));
    EXPECT_EQ(directory.Read("SHUFFLE.CDB"), WithColumns(std::string(12800, ' '), {{321, "3  4"}}));
    EXPECT_EQ(GameTableFile(), WithRecords(before, {{2, FreeRecord(1)}}));
    EXPECT_EQ(ShownGame(), "un-defined");
    EXPECT_EQ(appState.currentGame, 1);
    EXPECT_EQ(appState.gameType, 0);
    EXPECT_EQ(RowsShown("grdHist"), 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    Close();
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf({}), directory.Read("GAME01.CDB")));
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), std::string(320000, ' '));
}

TEST_F(TwoGames, DeleteKeepsTheOptionOfTheWheels) {
    const std::string withOption = WithColumns(std::string(12800, ' '), {{300, "PW"}});
    directory.Write("SHUFFLE.CDB", WithColumns(withOption, {{1, "7  12"}}));
    Start();
    ExpectDeleteQuestion(BoxAnswer::Yes);
    Choose(deleteGame);
    EXPECT_EQ(directory.Read("SHUFFLE.CDB"), withOption);
}

TEST_F(TwoGames, DeletedPlaysWaitForNoSave) {
    Start();
    boxes.ExpectBeforeLoss("Erase ALL Play Slips for this game?", BoxIcon::Question, BoxAnswer::Yes);
    Choose("mnuEditArray(7)");
    ASSERT_TRUE(appState.playsDirty);
    ExpectDeleteQuestion(BoxAnswer::Yes);
    Choose(deleteGame);
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(GameSlots, ADeletedCardGameLeavesAFreeSlotOfNumbersAndPlaysByHand) {
    Store({.name = "Cards", .gameType = 5, .mainPicks = 5, .bonusPicks = 1, .high = 52, .draws = {}});
    directory.Write("PLAYS01.CDB", WithColumns(std::string(320000, ' '), {{1, "SH"}, {6, " 1"}}));
    Start();
    ExpectDeleteQuestion(BoxAnswer::Yes);
    Choose(deleteGame);
    EXPECT_EQ(RecordColumns(1, 1, 64), FreeRecord(1));
    EXPECT_EQ(appState.gameType, 0);
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), 0);
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), std::string(320000, ' '));
}

TEST_F(TwoGames, WhatWasTypedLastIsDeletedToo) {
    Start();
    ClickCell("grdHist", 1, 1);
    Type("5");
    ExpectDeleteQuestion(BoxAnswer::Yes);
    Choose(deleteGame);
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf({}), directory.Read("GAME01.CDB")));
    EXPECT_FALSE(appState.historyDirty);
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(TwoGames, ADeletedSlotTakesTheNextGame) {
    Start();
    ExpectDeleteQuestion(BoxAnswer::Yes);
    Choose(deleteGame);
    InDialogOf(addGame, [this] {
        EXPECT_EQ(appState.gameDialogSlot, 1);
        SetUpSixOf49("Anew");
    });
    EXPECT_EQ(RecordColumns(1, 1, 64), SixOf49Record(1, "Anew"));
    EXPECT_EQ(ShownGame(), "Anew");
}

/// A game with a bonus, some plays and chosen picks in slot 1.
class QuirkDeleteGame1 : public GameSlots {
  protected:
    void SetUp() override {
        Store({.name = "Five and one", .gameType = 2, .mainPicks = 5, .bonusPicks = 1, .draws = {}});
        std::string plays(320000, ' ');
        directory.Write("PLAYS01.CDB", WithColumns(plays, {{1, "SH"}, {6, " 1"}, {21, " 6"}, {24, " 7"}, {36, " 8"}}));
        directory.Write("SHUFFLE.CDB",
                        WithColumns(std::string(12800, ' '), {{1, "7  12"}, {300, "PW"}, {20 * 320 + 1, "3  4"}}));
        Start();
        ExpectDeleteQuestion(BoxAnswer::Yes);
        Choose(deleteGame);
    }
};

// Not a bug: DELETE-GAME-1 in docs/not-bugs.md.
TEST_F(QuirkDeleteGame1, PlaysKeepThePicksThatTheGameDidNotReach) {
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), WithColumns(std::string(320000, ' '), {{24, " 7"}}));
}

TEST_F(QuirkDeleteGame1, TheChosenBonusPicksStay) {
    EXPECT_EQ(directory.Read("SHUFFLE.CDB"), WithColumns(std::string(12800, ' '), {{20 * 320 + 1, "3  4"}}));
}

// The question for a slot chosen in the list

TEST_F(TwoGames, YesToTheQuestionForAChosenSlotOpensTheDialogOnIt) {
    Start();
    const std::string before = GameTableFile();
    ExpectSetUpQuestion(7, BoxAnswer::Yes);
    InGameDialog([this] {
        EXPECT_EQ(appState.gameDialogSlot, 7);
        EXPECT_EQ(appState.gameDialogMode, GameDialogMode::Adding);
        SetUpSixOf49("Seventh");
    });
    ChooseEntry("cboList(0)", 6);
    EXPECT_EQ(GameTableFile(),
              WithRecords(before, {{1, Padded("07/1/1/000000", 64)}, {8, SixOf49Record(7, "Seventh")}}));
    EXPECT_EQ(ShownGame(), "Seventh");
}

}  // namespace
}  // namespace ballhaven
