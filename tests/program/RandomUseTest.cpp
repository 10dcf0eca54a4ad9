#include "forms/MainForm.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <QTest>

#include <algorithm>
#include <random>

namespace ballhaven {
namespace {

using support::Draw;
using support::StoredGame;

/// A game as a person sees it from outside: its draws, oldest first, what is known of its file, and the chosen set.
struct ModelGame {
    StoredGame stored;
    std::vector<Draw> onDisk;
    int setSize;
};

std::string Day(int number) {
    const int month = number / 28 + 1;
    const int day = number % 28 + 1;
    return '0' + std::to_string(month) + (day < 10 ? "/0" : "/") + std::to_string(day) + "/1990";
}

StoredGame Game(int slot, int gameType, int mainPicks, int bonusPicks, int draws) {
    StoredGame game{.slot = slot, .name = "Game " + std::to_string(slot), .gameType = gameType};
    game.mainPicks = mainPicks;
    game.bonusPicks = bonusPicks;
    game.high = gameType > 2 ? 52 : 40;
    game.bonusHigh = gameType > 2 ? 52 : 12;
    game.historySet = "020";
    for (int number = 0; number < draws; ++number) {
        game.draws.push_back({Day(number), {}});
        for (int pick = 0; pick < mainPicks + bonusPicks; ++pick) {
            game.draws.back().picks.push_back(1 + (number * 7 + pick * 5) % 12);
        }
    }
    return game;
}

/// The program under a user who does anything, beside a plain model of what must come of it.
class RandomUse : public support::RunningProgram {
  protected:
    void SetUp() override {
        for (const StoredGame& game :
             {Game(1, 0, 6, 0, 45), Game(2, 2, 5, 2, 25), Game(3, 4, 3, 1, 33), Game(4, 1, 8, 2, 3)}) {
            Store(game);
            games.push_back({game, game.draws, 20});
        }
        StoreShown(1, 1);
        Start();
        // The words of refusals and of sets too small for the current draw are looked at elsewhere; here they come as
        // they come.
        platform::services.showMessageBox = [this](const platform::MessageBoxRequest& request) {
            EXPECT_EQ(request.buttons, platform::BoxButtons::Ok) << request.text;
            EXPECT_NE(request.icon, platform::BoxIcon::Critical) << request.text;
            ++boxesShown;
            return platform::BoxAnswer::Ok;
        };
    }

    int Roll(int low, int high) { return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1)); }

    ModelGame& Current() { return games[static_cast<std::size_t>(current)]; }

    /// Rows of the model's draws in the order of the screen.
    [[nodiscard]] std::vector<Draw> Shown() {
        const std::vector<Draw>& draws = Current().stored.draws;
        const auto count = std::min(draws.size(), static_cast<std::size_t>(Current().setSize));
        std::vector<Draw> shown(draws.end() - static_cast<std::ptrdiff_t>(count), draws.end());
        if (!oldestFirst) {
            std::ranges::reverse(shown);
        }
        return shown;
    }

    void SaveModel() {
        if (dirty) {
            Current().onDisk = Current().stored.draws;
            dirty = false;
        }
    }

    void ChooseGame() {
        const int chosen = Roll(0, static_cast<int>(games.size()) - 1);
        ChooseEntry("cboList(0)", chosen);
        if (chosen != current) {
            SaveModel();
            Current().stored.draws = Current().onDisk;  // what was typed without a press of the mouse is lost
            current = chosen;
        }
    }

    void ChooseSet() {
        Current().setSize = 10 * Roll(1, 6);
        ChooseEntry("cboList(1)", Current().setSize / 10 - 1);
        SaveModel();
    }

    void ChooseOrder() {
        const bool wanted = Roll(0, 1) == 1;
        Click(wanted ? "cmdButton(4)" : "cmdButton(5)");
        if (wanted != oldestFirst) {
            oldestFirst = wanted;
            SaveModel();
        }
    }

    /// Clicks a cell of the log, unless a window of little height cuts it off. Cards that cover it are closed instead.
    void ClickAnyCell() {
        const int row = Roll(0, RowsShown("grdHist") - 1);
        const int column = Roll(0, 10);
        const QPoint place = Find("grdHist").mapTo(&MainWindow(), CellPlace("grdHist", row, column).center());
        if (MainWindow().childAt(place) == &Find("picCards(0)")) {
            ClickAt("picCards(0)", {75, 8});
        } else if (MainWindow().rect().contains(place)) {
            ClickCell("grdHist", row, column);
            dirty = true;
        }
    }

    /// Types a value into the current cell, from far below to far above the range; a refused one is taken back.
    void TypePick() {
        const int row = frmMainForm.grdHist.CurrentRow();
        const int column = frmMainForm.grdHist.CurrentColumn();
        frmMainForm.grdHist.TakeFocus();
        const int value = Roll(0, 60);
        const bool accepted = IsAccepted(column, value);
        const int before = boxesShown;
        Type(std::to_string(value).c_str());
        Press(Qt::Key_Return);
        if (!CanBeTypedIn(column)) {
            EXPECT_EQ(boxesShown, before);
            return;
        }
        EXPECT_EQ(boxesShown, accepted ? before : before + 1) << value;
        if (accepted) {
            DrawOf(Shown()[static_cast<std::size_t>(row)].date).picks[static_cast<std::size_t>(column - 1)] = value;
        } else {
            EXPECT_EQ(EditorText("grdHist"), std::to_string(value));
            Press(Qt::Key_Escape);
        }
    }

    [[nodiscard]] bool CanBeTypedIn(int column) {
        const StoredGame& game = Current().stored;
        return game.gameType < 3 && column >= 1 && column <= game.mainPicks + game.bonusPicks;
    }

    [[nodiscard]] bool IsAccepted(int column, int value) {
        const StoredGame& game = Current().stored;
        const int high = column > game.mainPicks ? game.bonusHigh : game.high;
        return value >= 1 && value <= high;
    }

    Draw& DrawOf(const std::string& date) { return *std::ranges::find(Current().stored.draws, date, &Draw::date); }

    void PressAnyKey() {
        constexpr Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,  Qt::Key_Down,
                                    Qt::Key_Home, Qt::Key_PageUp, Qt::Key_End, Qt::Key_PageDown};
        frmMainForm.grdHist.TakeFocus();
        Press(keys[Roll(0, static_cast<int>(std::size(keys)) - 1)]);
    }

    void DoAnything() {
        switch (Roll(0, 19)) {
            case 0:
                return ChooseGame();
            case 1:
                return ChooseSet();
            case 2:
                return ChooseOrder();
            case 3:
                return ChooseEntry("cboList(2)", Roll(0, 4));
            case 4:
                return DragToHeight(15 * Roll(500, 800));
            case 5:
            case 6:
            case 7:
            case 8:
            case 9:
                return ClickAnyCell();
            case 10:
            case 11:
            case 12:
            case 13:
                return PressAnyKey();
            default:
                return TypePick();
        }
    }

    /// The view agrees with the table, and every cell on screen with the model.
    void CheckScreen() {
        const std::vector<Draw> shown = Shown();
        ASSERT_EQ(appState.historyViewLast + 1, static_cast<int>(shown.size()));
        ASSERT_EQ(RowsShown("grdHist"), static_cast<int>(shown.size()));
        for (int row = 0; row <= appState.historyViewLast; ++row) {
            const int inTable =
                oldestFirst ? appState.historyLast - appState.historyViewLast + row : appState.historyLast - row;
            for (int column = 0; column <= appState.totalPicks; ++column) {
                ASSERT_EQ(appState.historyView(column, row), appState.HistoryTable(column, inTable));
            }
            const Draw& draw = shown[static_cast<std::size_t>(row)];
            ASSERT_EQ(CellText("grdHist", row, 0), draw.date);
            for (std::size_t pick = 0; pick < draw.picks.size(); ++pick) {
                const int column = static_cast<int>(pick) + 1;
                ASSERT_EQ(appState.historyView(column, row), draw.picks[pick]);
                ASSERT_EQ(CellText("grdHist", row, column), TextOf(draw.picks[pick]));
            }
        }
    }

    std::string TextOf(int pick) {
        if (Current().stored.gameType < 3) {
            return std::to_string(pick);
        }
        constexpr const char* hearts[] = {"Ah", "2h", "3h", "4h", "5h", "6h", "7h", "8h", "9h", "10h", "Jh", "Qh"};
        return hearts[pick - 1];
    }

    std::mt19937 random{20021026};
    std::vector<ModelGame> games;
    int current = 0;
    bool oldestFirst = true;
    bool dirty = false;
    int boxesShown = 0;
};

TEST_F(RandomUse, TwoThousandActionsLeaveTheScreenAndTheFilesAsAPlainModelHasThem) {
    for (int action = 0; action < 2000 && !HasFailure(); ++action) {
        SCOPED_TRACE("action " + std::to_string(action));
        DoAnything();
        EXPECT_EQ(appState.historyDirty, dirty);
        CheckScreen();
    }
    SaveModel();
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    for (const ModelGame& game : games) {
        const std::string file = "GAME0" + std::to_string(game.stored.slot) + ".CDB";
        EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(game.onDisk), directory.Read(file))) << file;
        EXPECT_EQ(RecordColumns(game.stored.slot, 27, 3), "0" + std::to_string(game.setSize));
    }
    EXPECT_EQ(RecordColumns(0, 4, 1), oldestFirst ? "1" : "0");
}

}  // namespace
}  // namespace ballhaven
