#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "forms/ShuffleForm.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::StoredGame;

using Picks = std::vector<int>;

constexpr const char* board = "grdShuffle";

/// Chosen picks as a person sees them: both lists in the order of choice, -1 for a hole, and the option, from 0.
struct ModelGame {
    StoredGame stored;
    Picks main = Picks(100, -1);
    Picks bonus = Picks(100, -1);
    int option = 0;
};

StoredGame Game(int slot, int gameType, int mainPicks, int bonusPicks) {
    StoredGame game{.slot = slot, .name = "Game " + std::to_string(slot), .gameType = gameType};
    game.mainPicks = mainPicks;
    game.bonusPicks = bonusPicks;
    game.high = gameType > 2 ? 52 : 40;
    game.bonusHigh = gameType == 2 ? 12 : game.high;
    return game;
}

bool HasBonusPicks(const StoredGame& game) {
    return game.gameType % 3 != 0;
}

int Columns(const StoredGame& game) {
    return game.gameType > 2 ? 6 : 9;
}

Picks CloseUp(Picks picks) {
    std::erase(picks, -1);
    picks.resize(100, -1);
    return picks;
}

/// A list as the file has it: two columns a pick and a blank, 300 in all.
std::string Fields(const Picks& picks) {
    std::string fields;
    for (const int pick : picks) {
        const std::string digits = pick < 0 ? "" : std::to_string(pick);
        fields += pick < 0 ? "" : digits + std::string(3 - digits.size(), ' ');
    }
    fields.resize(300, ' ');
    return fields;
}

/// The Wheel and Shuffle window under a user who does anything, beside a plain model of what must come of it.
class RandomWheels : public support::RunningProgram {
  protected:
    void SetUp() override {
        for (const StoredGame& game : {Game(1, 0, 3, 0), Game(2, 1, 3, 2), Game(3, 2, 4, 1), Game(4, 3, 2, 0),
                                       Game(5, 4, 2, 1), Game(6, 5, 1, 2)}) {
            Store(game);
            games.push_back({game});
        }
        StoreShown(1, 1);
        Start();
        // The words of the boxes are looked at elsewhere; here they come as they come, and get any answer.
        platform::services.showMessageBox = [this](const platform::MessageBoxRequest& request) {
            EXPECT_NE(request.icon, platform::BoxIcon::Critical) << request.text;
            if (request.buttons == platform::BoxButtons::Ok) {
                return platform::BoxAnswer::Ok;
            }
            return Roll(0, 1) == 0 ? platform::BoxAnswer::No : platform::BoxAnswer::Yes;
        };
    }

    int Roll(int low, int high) { return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1)); }

    ModelGame& Current() { return games[static_cast<std::size_t>(current)]; }
    const StoredGame& Rules() { return Current().stored; }

    void OpenIfClosed() {
        if (frmShuffle.window.IsLoaded()) {
            return;
        }
        Click("cmdButton(7)");
        ASSERT_TRUE(QTest::qWaitFor([] { return !frmShuffle.loading; }));
        totals = {};
    }

    void CloseWindow() {
        if (Roll(0, 1) == 0) {
            Click("cmdClose");
        } else {
            Find(board).window()->close();
            support::Settle();
        }
    }

    /// The list that a cell belongs to, and the pick in it; none where nothing stands.
    void ToggleInModel(int cell) {
        const int firstBonus = Columns(Rules()) * 12;
        const bool isBonus = cell >= firstBonus;
        const int value = isBonus ? cell - firstBonus : cell;
        if (value >= (isBonus ? Rules().bonusHigh : Rules().high)) {
            return;
        }
        Picks& own = isBonus ? Current().bonus : Current().main;
        const Picks& other = isBonus ? Current().main : Current().bonus;
        if (const auto held = std::ranges::find(own, value); held != own.end()) {
            *held = -1;
        } else if (Rules().gameType != 1 || std::ranges::find(other, value) == other.end()) {
            *std::ranges::find(own, -1) = value;
        }
    }

    void ClickAnyCell() {
        const int cell = Roll(0, Columns(Rules()) * (HasBonusPicks(Rules()) ? 24 : 12) - 1);
        ClickCell(board, cell / Columns(Rules()), cell % Columns(Rules()));
        ToggleInModel(cell);
    }

    void ChooseOption() {
        const int option = Roll(0, 2);
        Click(("optShuffle(" + std::to_string(option) + ")").c_str());
        Current().option = option;
        for (std::size_t box = 0; box < totals.size(); ++box) {
            totals[box] = static_cast<int>(box) == option ? totals[box] : "";
        }
    }

    void TypeTotal() {
        constexpr std::array texts = {"2", "17", "5000", "0", "3.5", "many", "1e3", " 6"};
        if (Current().option == 2) {
            return;
        }
        frmShuffle.window.ShowInFront();  // a click that comes from no desktop brings no window to the front
        ASSERT_TRUE(QTest::qWaitForWindowActive(Find(board).window()));
        const char* const text = texts[static_cast<std::size_t>(Roll(0, static_cast<int>(texts.size()) - 1))];
        Click(Current().option == 0 ? "txtShuffle(0)" : "txtShuffle(1)");
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
        Press(Qt::Key_Return);
        totals[static_cast<std::size_t>(Current().option)] = text;
    }

    void Erase() {
        Click("cmdErasePlay(5)");
        Current().main.assign(100, -1);
        Current().bonus.assign(100, -1);
    }

    void ChooseGame() {
        const int chosen = Roll(0, static_cast<int>(games.size()) - 1);
        ChooseEntry("cboList(0)", chosen);
        if (chosen == current) {
            return;
        }
        EXPECT_FALSE(frmShuffle.window.IsLoaded());
        EXPECT_FALSE(frmPlays.window.IsLoaded());
        current = chosen;
        Current().main = CloseUp(Current().main);
        Current().bonus = CloseUp(Current().bonus);
        Current().option = HasBonusPicks(Rules()) ? 0 : Current().option;
    }

    void DoAnything() {
        switch (Roll(0, 29)) {
            case 0:
                return CloseWindow();
            case 1:
                return ChooseGame();
            case 2:
                return Click("cmdButton");
            case 3:
                return Erase();
            case 4:
            case 5:
            case 6:
                return ChooseOption();
            case 7:
            case 8:
            case 9:
                return TypeTotal();
            case 10:
            case 11:
            case 12:
                return Click("cmdStart");
            default:
                return ClickAnyCell();
        }
    }

    void CheckPicks() {
        for (std::size_t slot = 0; slot < 100; ++slot) {
            ASSERT_EQ(appState.ShuffleTable(mainPicks, static_cast<int>(slot) + 1), Current().main[slot]);
            ASSERT_EQ(appState.ShuffleTable(bonusPicks, static_cast<int>(slot) + 1), Current().bonus[slot]);
        }
    }

    void CheckWindow() {
        for (int option = 0; option < 3; ++option) {
            ASSERT_EQ(frmShuffle.optShuffle[static_cast<std::size_t>(option)].IsChosen(), option == Current().option);
        }
        for (std::size_t box = 0; box < totals.size(); ++box) {
            const auto& shown = Find<QLineEdit>(box == 0 ? "txtShuffle(0)" : "txtShuffle(1)");
            ASSERT_EQ(shown.text().toStdString(), totals[box]);
            ASSERT_EQ(shown.isEnabled(), static_cast<int>(box) == Current().option);
        }
    }

    /// Each play has all its main picks or none.
    void CheckPlays() {
        for (int play = 1; play <= playCount; ++play) {
            const auto picks = appState.PlayTable.Slots(mainPicks, play);
            const auto filled = std::ranges::count_if(picks, [](std::int16_t pick) { return pick >= 0; });
            ASSERT_TRUE(filled == 0 || filled == Rules().mainPicks) << play;
        }
    }

    std::mt19937 random{19840102};
    std::vector<ModelGame> games;
    std::array<std::string, 2> totals;
    int current = 0;
};

TEST_F(RandomWheels, AThousandActionsLeaveTheWindowAndTheFileAsAPlainModelHasThem) {
    for (int action = 0; action < 1000 && !HasFailure(); ++action) {
        SCOPED_TRACE("action " + std::to_string(action));
        OpenIfClosed();
        DoAnything();
        CheckPicks();
        if (frmShuffle.window.IsLoaded()) {
            CheckWindow();
        }
        CheckPlays();
    }
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    const std::string file = directory.Read("SHUFFLE.CDB");
    for (const ModelGame& game : games) {
        const auto main = static_cast<std::size_t>(320 * (game.stored.slot - 1));
        EXPECT_EQ(file.substr(main, 299), Fields(game.main).substr(0, 299)) << game.stored.slot;
        const auto bonus = main + std::size_t{320 * 20};
        EXPECT_EQ(file.substr(bonus, 299), Fields(game.bonus).substr(0, 299)) << game.stored.slot;
    }
}

}  // namespace
}  // namespace ballhaven
