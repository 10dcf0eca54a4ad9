#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <map>
#include <random>

namespace ballhaven {
namespace {

using support::Settle;
using support::StoredGame;

using Slots = std::array<int, 10>;

/// A play as a person sees it from outside: its picks in their slots, -1 for an empty one.
struct ModelPlay {
    ModelPlay() {
        main.fill(-1);
        bonus.fill(-1);
    }

    Slots main;
    Slots bonus;
};

struct ModelGame {
    StoredGame stored;
    std::map<int, ModelPlay> plays;  ///< those that were ever touched
};

StoredGame Game(int slot, int gameType, int mainPicks, int bonusPicks, bool inOrder) {
    StoredGame game{.slot = slot, .name = "Game " + std::to_string(slot), .gameType = gameType};
    game.mainPicks = mainPicks;
    game.bonusPicks = bonusPicks;
    game.high = gameType > 2 ? 52 : 40;
    game.bonusHigh = gameType == 2 ? 12 : game.high;
    game.inOrder = inOrder;
    game.draws.push_back({"03/05/1990", {}});
    for (int pick = 1; pick <= mainPicks + bonusPicks; ++pick) {
        game.draws.back().picks.push_back(2 * pick);
    }
    return game;
}

bool HasCards(const StoredGame& game) {
    return game.gameType > 2;
}

int ColumnsOf(const StoredGame& game) {
    return HasCards(game) ? 6 : 9;
}

int RowsOf(const StoredGame& game) {
    return game.gameType == 0 || game.gameType == 3 ? 12 : 24;
}

int FirstBonusCell(const StoredGame& game) {
    return HasCards(game) ? 72 : 108;
}

/// What a cell stands for: which list, and the place in its range from 0; none beside the picks.
struct Choice {
    bool isBonus;
    int value;
};

std::optional<Choice> ChoiceOf(const StoredGame& game, int cell) {
    const bool isBonus = cell >= FirstBonusCell(game);
    const int value = isBonus ? cell - FirstBonusCell(game) : cell;
    const bool hasBonus = RowsOf(game) == 24;
    if (value >= (isBonus ? game.bonusHigh : game.high) || (isBonus && !hasBonus)) {
        return std::nullopt;
    }
    return Choice{isBonus, value};
}

bool Has(const Slots& list, int value) {
    return std::ranges::find(list, value) != list.end();
}

/// The record of a play: no method, main picks in columns 6 to 35, bonus picks in 36 to 65, three columns each.
std::string RecordOf(const ModelPlay& play) {
    std::string record(64, ' ');
    std::size_t place = 5;
    for (const Slots& list : {play.main, play.bonus}) {
        for (const int pick : list) {
            if (pick >= 0) {
                record.replace(place, 2, pick < 10 ? ' ' + std::to_string(pick) : std::to_string(pick));
            }
            place += 3;
        }
    }
    return record.substr(0, 64);
}

/// Boards under a user who does anything, beside a plain model of what must come of it.
class RandomPlays : public support::RunningProgram {
  protected:
    void SetUp() override {
        for (const StoredGame& game : {Game(1, 0, 6, 0, true), Game(2, 1, 5, 2, false), Game(3, 2, 4, 1, true),
                                       Game(4, 3, 5, 0, false), Game(5, 4, 3, 2, false), Game(6, 5, 2, 3, true)}) {
            Store(game);
            games.push_back({game, {}});
        }
        StoreShown(1, 1);
        Start();
        platform::services.beep = [this] { ++beeps; };
        platform::services.showMessageBox = [this](const platform::MessageBoxRequest& request) {
            asked.push_back(request.text);
            return request.buttons == platform::BoxButtons::Ok ? platform::BoxAnswer::Ok : answer;
        };
    }

    int Roll(int low, int high) { return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1)); }

    ModelGame& Current() { return games[static_cast<std::size_t>(current)]; }
    const StoredGame& Rules() { return Current().stored; }
    ModelPlay& Play(int play) { return Current().plays[play]; }

    [[nodiscard]] int PlayOnBoard(int board) const { return slip * 5 - 4 + board; }

    /// What a click on a cell of a play does.
    void ToggleInModel(int play, int cell) {
        const std::optional<Choice> choice = ChoiceOf(Rules(), cell);
        if (!choice) {
            return;
        }
        Slots& own = choice->isBonus ? Play(play).bonus : Play(play).main;
        const Slots& other = choice->isBonus ? Play(play).main : Play(play).bonus;
        const auto end = own.begin() + (choice->isBonus ? Rules().bonusPicks : Rules().mainPicks);
        if (const auto held = std::find(own.begin(), end, choice->value); held != end) {
            *held = -1;
        } else if (Rules().gameType == 1 && Has(other, choice->value)) {
            return;
        } else if (const auto empty = std::find(own.begin(), end, -1); empty != end) {
            *empty = choice->value;
        } else {
            expected.push_back(choice->isBonus ? "You already have enough bonus picks"
                                               : "You already have enough main picks");
        }
    }

    /// Whether a cell is shown as a winner: its number is in the draw, where the order counts in its own place.
    bool Wins(int play, int cell) {
        const std::optional<Choice> choice = ChoiceOf(Rules(), cell);
        const Slots& own = choice->isBonus ? Play(play).bonus : Play(play).main;
        const auto begin = Rules().draws[0].picks.begin() + (choice->isBonus ? Rules().mainPicks : 0);
        const auto count = choice->isBonus ? Rules().bonusPicks : Rules().mainPicks;
        const int number = choice->value + 1;
        if (Rules().inOrder) {
            return *(begin + (std::ranges::find(own, choice->value) - own.begin())) == number;
        }
        return std::find(begin, begin + count, number) != begin + count;
    }

    /// The ground of a cell is white, red in a winner, and else that of a pick.
    void CheckCell(const char* grid, int row, int column, int play, int cell) {
        const std::optional<Choice> choice = ChoiceOf(Rules(), cell);
        if (!choice) {
            return;
        }
        const QColor color = CellColor(grid, row, column);
        const Slots& own = choice->isBonus ? Play(play).bonus : Play(play).main;
        const bool picked = Has(own, choice->value);
        EXPECT_EQ(color == QColor(Qt::white), !picked)
            << grid << ", play " << play << ", cell " << cell << ", " << color.name().toStdString();
        EXPECT_EQ(color == QColor(Qt::red), picked && winners && Wins(play, cell))
            << grid << ", play " << play << ", cell " << cell << ", " << color.name().toStdString();
    }

    void ClickMainBoard() {
        const int row = Roll(0, RowsOf(Rules()) - 1);
        const int column = Roll(0, ColumnsOf(Rules()) - 1);
        const int cell = row * ColumnsOf(Rules()) + column;
        ClickCell("grdPlay", row, column);
        ToggleInModel(playOnMain, cell);
        CheckCell("grdPlay", row, column, playOnMain, cell);
    }

    void ClickSlip() {
        if (!slipsOpen) {
            return;
        }
        const int board = Roll(0, 4);
        const int row = Roll(0, RowsOf(Rules()) - 1);
        const int column = Roll(0, ColumnsOf(Rules()) - 1);
        const int cell = row * ColumnsOf(Rules()) + column;
        const int columnOfAll = board * ColumnsOf(Rules()) + column;
        ClickCell("grdPlays(0)", row, columnOfAll);
        ToggleInModel(PlayOnBoard(board), cell);
        CheckCell("grdPlays(0)", row, columnOfAll, PlayOnBoard(board), cell);
    }

    /// Presses in one cell of the slip and lets go in another: no click.
    void DragOverSlip() {
        if (!slipsOpen) {
            return;
        }
        QWidget& boards = Usable("grdPlays(0)");
        QWindow* const window = boards.window()->windowHandle();
        const QPoint from = CellPlace("grdPlays(0)", Roll(0, 5), Roll(0, 20)).center();
        const QPoint to = CellPlace("grdPlays(0)", Roll(6, 11), Roll(21, 29)).center();
        QTest::mousePress(window, Qt::LeftButton, {}, boards.mapTo(boards.window(), from));
        QTest::mouseMove(window, boards.mapTo(boards.window(), to));
        QTest::mouseRelease(window, Qt::LeftButton, {}, boards.mapTo(boards.window(), to));
        Settle();
    }

    void PressKeysOnBoards() {
        constexpr Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
        (slipsOpen ? frmPlays.grdPlays[0] : frmMainForm.grdPlay).TakeFocus();
        Press(keys[Roll(0, static_cast<int>(std::size(keys)) - 1)]);
    }

    void StepOnMain() {
        const int step = Roll(0, 1);
        const int before = beeps;
        Click(step == 0 ? "cmdPlayBttn(0)" : "cmdPlayBttn(1)");
        if (step == 0 && playOnMain == 1) {
            EXPECT_EQ(beeps, before + 1);
        } else {
            playOnMain += step == 0 ? -1 : 1;
        }
    }

    void StepSlips() {
        if (!slipsOpen) {
            return;
        }
        const int step = Roll(0, 1);
        const int before = beeps;
        Click(step == 0 ? "cmdScrollPlaySlips(0)" : "cmdScrollPlaySlips(1)");
        if (step == 0 && slip == 1) {
            EXPECT_EQ(beeps, before + 1);
        } else {
            slip += step == 0 ? -1 : 1;
        }
    }

    void EraseOnMain() {
        Click("cmdPlayBttn(2)");
        Play(playOnMain) = ModelPlay();
    }

    void EraseOnSlip() {
        if (!slipsOpen) {
            return;
        }
        const int button = Roll(0, 5);
        answer = Roll(0, 1) == 0 ? platform::BoxAnswer::No : platform::BoxAnswer::Yes;
        Click(("cmdErasePlay(" + std::to_string(button) + ")").c_str());
        if (button > 0) {
            Play(PlayOnBoard(button - 1)) = ModelPlay();
            return;
        }
        expected.push_back("Erase Play Slip # " + std::to_string(slip) + "?");
        for (int board = 0; board < 5 && answer == platform::BoxAnswer::Yes; ++board) {
            Play(PlayOnBoard(board)) = ModelPlay();
        }
    }

    void EraseAll() {
        answer = Roll(0, 3) > 0 ? platform::BoxAnswer::No : platform::BoxAnswer::Yes;
        if (!slipsOpen) {
            return;
        }
        Click("cmdToolbar(2)");
        expected.emplace_back("Erase ALL Play Slips?");
        if (answer == platform::BoxAnswer::Yes) {
            Current().plays.clear();
        }
    }

    void HiLite() {
        winners = Roll(0, 2) > 0;
        if (slipsOpen && Roll(0, 1) == 0) {
            Click(winners ? "cmdToolbar(4)" : "cmdToolbar(5)");
        } else {
            ChooseFromMenu("mnuTools", winners ? "mnuToolArray(2)" : "mnuToolArray(3)");
        }
    }

    void OpenOrCloseSlips() {
        if (slipsOpen) {
            dynamic_cast<QWidget&>(*frmPlays.window.view).close();
            Settle();
        } else {
            ChooseFromMenu("mnuView", "mnuViewArray(3)");
            slip = 1;
        }
        slipsOpen = !slipsOpen;
    }

    void ChooseGame() {
        const int chosen = Roll(0, static_cast<int>(games.size()) - 1);
        ChooseEntry("cboList(0)", chosen);
        if (chosen != current) {
            current = chosen;
            playOnMain = 1;
            slipsOpen = false;
        }
    }

    void DoAnything() {
        const int roll = Roll(0, 99);
        if (roll < 2) {
            ChooseGame();
        } else if (roll < 8) {
            OpenOrCloseSlips();
        } else if (roll < 12) {
            HiLite();
        } else if (roll < 13) {
            EraseAll();
        } else if (roll < 17) {
            EraseOnSlip();
        } else if (roll < 20) {
            EraseOnMain();
        } else if (roll < 28) {
            StepOnMain();
        } else if (roll < 36) {
            StepSlips();
        } else if (roll < 42) {
            PressKeysOnBoards();
        } else if (roll < 46) {
            DragOverSlip();
        } else if (roll < 70) {
            ClickMainBoard();
        } else {
            ClickSlip();
        }
    }

    /// All plays are those of the model, and so are labels, windows and boxes.
    void CheckProgram() {
        ASSERT_EQ(asked, expected);
        ASSERT_EQ(appState.playsWindowOpen, slipsOpen);
        ASSERT_EQ(appState.hiLiteWinners, winners);
        ASSERT_EQ(*frmMainForm.lblPlay.text,
                  std::to_string((playOnMain + 4) / 5) + "." + "ABCDE"[static_cast<std::size_t>((playOnMain - 1) % 5)]);
        if (slipsOpen) {
            ASSERT_EQ(*frmPlays.lblPlaySlip.text, " " + std::to_string(slip) + " Play Slip  ");
        }
        for (const auto& [play, picks] : Current().plays) {
            for (int slot = 1; slot <= 10; ++slot) {
                const auto place = static_cast<std::size_t>(slot - 1);
                ASSERT_EQ(appState.PlayTable(mainPicks, play, slot), picks.main[place]) << "play " << play;
                ASSERT_EQ(appState.PlayTable(bonusPicks, play, slot), picks.bonus[place]) << "play " << play;
            }
        }
    }

    std::mt19937 random{1999};
    std::vector<ModelGame> games;
    int current = 0;
    int playOnMain = 1;
    int slip = 1;
    bool slipsOpen = false;
    bool winners = false;
    int beeps = 0;
    platform::BoxAnswer answer = platform::BoxAnswer::No;
    std::vector<std::string> asked;
    std::vector<std::string> expected;
};

TEST_F(RandomPlays, ThreeThousandActionsLeaveTheBoardsAndTheFilesAsAPlainModelHasThem) {
    for (int action = 0; action < 3000 && !HasFailure(); ++action) {
        SCOPED_TRACE("action " + std::to_string(action) + ", game " + std::to_string(current + 1));
        DoAnything();
        CheckProgram();
    }
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    for (const ModelGame& game : games) {
        std::string file;
        for (int play = 1; play <= 5000; ++play) {
            const auto touched = game.plays.find(play);
            file += RecordOf(touched == game.plays.end() ? ModelPlay() : touched->second);
        }
        const std::string name = "PLAYS0" + std::to_string(game.stored.slot) + ".CDB";
        EXPECT_TRUE(directory.Read(name) == file) << name;
        EXPECT_FALSE(game.plays.empty()) << "no play was ever touched in game " << game.stored.slot;
    }
}

TEST_F(RandomPlays, ClicksOnTheBoardsOfASlipThatDoesNotExistChangeNothing) {
    OpenOrCloseSlips();
    appState.currentSlip = 0;
    for (int click = 0; click < 50; ++click) {
        ClickCell("grdPlays(0)", Roll(0, 11), Roll(0, 44));
    }
    for (int line = 1; line <= 5; ++line) {
        Click(("cmdErasePlay(" + std::to_string(line) + ")").c_str());
    }
    CheckProgram();
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    EXPECT_TRUE(directory.Read("PLAYS01.CDB") == std::string(5000UL * 64, ' '));
}

}  // namespace
}  // namespace ballhaven
