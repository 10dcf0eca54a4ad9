#include "forms/MainForm.h"
#include "history/DrawCommands.h"
#include "history/DrawDates.h"
#include "history/GameSwitch.h"
#include "history/UnsavedWork.h"
#include "platform/MessageBox.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/qt/TypedLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <random>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;

constexpr int picksOfDraw = 3;
constexpr int fullLog = 1000;

/// A draw of the plain model: its date as days from 1 January 1984, and its picks, -1 for a blank one.
struct PlainDraw {
    int date = 0;
    std::array<int, picksOfDraw> picks = {-1, -1, -1};
};

/// A game of the plain model: its draws in the order of their rows, and those in its file.
struct PlainGame {
    std::vector<PlainDraw> rows;
    std::vector<PlainDraw> file;
    int setSize;
};

std::string TextOf(int date) {
    const std::chrono::year_month_day day =
        std::chrono::sys_days{std::chrono::year{1984} / std::chrono::January / 1} + std::chrono::days{date};
    const auto twoDigits = [](unsigned value) { return (value < 10 ? "0" : "") + std::to_string(value); };
    return twoDigits(static_cast<unsigned>(day.month())) + "/" + twoDigits(static_cast<unsigned>(day.day())) + "/" +
           std::to_string(static_cast<int>(day.year()));
}

/// The log under a user who does anything in any order, beside a plain model of what must come of it.
class AnyOrderOfEdits : public support::TypedLogTest {
  protected:
    void SetUp() override {
        OpenGameTable();
        Configure(1, "010", 0);
        Configure(2, "000", fullLog - 4);
        Configure(3, "020", 30);
        SwitchGame();
        CutView();
    }

    /// Stores a game of three numbers of 1 to 49 in a slot, with one draw a day.
    void Configure(int slot, const std::string& setSize, int draws) {
        appState.gameRecord = BuildDefaultGameRecord(slot, 0);
        modUTILS::SetColumns(appState.gameRecord, 4, modUTILS::FixedWidth("Game " + std::to_string(slot), 20));
        modUTILS::SetColumns(appState.gameRecord, 27, setSize);
        SetFieldValue(appState.gameRecord, gameField::mainPickCount, picksOfDraw);
        SetFieldValue(appState.gameRecord, gameField::mainHigh, 49);
        SaveGameRecord(slot);
        PlainGame& game = games[static_cast<std::size_t>(slot - 1)];
        game.setSize = setSize == "000" ? fullLog : std::stoi(setSize);
        for (int day = 0; day < draws; ++day) {
            game.rows.push_back({firstDate + day, {1 + day % 40, 2 + day % 40, 3 + day % 40}});
        }
        game.file = game.rows;
        directory.Write("GAME0" + std::to_string(slot) + ".CDB", FileOf(game));
    }

    static std::string FileOf(const PlainGame& game) {
        std::vector<support::Draw> draws;
        for (const PlainDraw& draw : game.file) {
            draws.push_back({TextOf(draw.date), {draw.picks.begin(), draw.picks.end()}});
        }
        return support::HistoryFileOf(draws);
    }

    int Roll(int low, int high) { return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1)); }

    PlainGame& Current() { return games[static_cast<std::size_t>(appState.currentGame - 1)]; }

    [[nodiscard]] auto FindRow(int date) { return std::ranges::find(Current().rows, date, &PlainDraw::date); }

    [[nodiscard]] bool HasDate(int date) { return FindRow(date) != Current().rows.end(); }

    void Save() {
        Current().file = Current().rows;
        dirty = false;
    }

    /// What the log shows: the last rows of the set.
    void CutView() {
        const std::vector<PlainDraw>& rows = Current().rows;
        const auto count = std::min(rows.size(), static_cast<std::size_t>(Current().setSize));
        view.assign(rows.end() - static_cast<std::ptrdiff_t>(count), rows.end());
        if (appState.historySortOrder == 0) {
            std::ranges::reverse(view);
        }
        countedRows = view.size();
    }

    void Refresh() {
        if (dirty) {
            Save();
        }
        CutView();
    }

    void ForetellGoingTo(int date) {
        if (!Current().rows.empty() && std::ranges::find(view, date, &PlainDraw::date) == view.end()) {
            boxes.Expect("Ballhaven",
                         "The record you have added cannot be displayed within the selected history set.\n"
                         "If you wish to see this record, select larger history set.",
                         BoxButtons::Ok, BoxIcon::None);
        }
    }

    /// Foretells the tick of the timer.
    void ForetellTick() {
        if (pending < 1) {
            return;
        }
        std::ranges::stable_sort(Current().rows, {}, &PlainDraw::date);
        Refresh();
        ForetellGoingTo(pending);
        pending = 0;
        dirty = dirty || pendingIsNew;
    }

    void Tick() {
        ForetellTick();
        BringInChosenDraw();
    }

    void ExpectDateExists() {
        boxes.Expect("Ballhaven", "Date already exists,\nplease select another date.", BoxButtons::Ok,
                     BoxIcon::Information);
    }

    /// A new draw; where its date exists, others are tried or the calendar is cancelled.
    void Add() {
        Tick();
        static_cast<void>(BeginNewDraw());
        pendingIsNew = true;
        for (int tries = Roll(0, 2); tries > 0; --tries) {
            const int date = AnyDate();
            if (HasDate(date)) {
                ExpectDateExists();
                EXPECT_FALSE(TakeChosenDate(TextOf(date)));
                continue;
            }
            std::vector<PlainDraw>& rows = Current().rows;
            if (rows.size() == fullLog) {
                rows.front() = {date};
            } else {
                rows.push_back({date});
                countedRows = countedRows <= 10 ? std::max(countedRows, rows.size()) : countedRows;
            }
            Save();
            pending = date;
            EXPECT_TRUE(TakeChosenDate(TextOf(date)));
            break;
        }
        EndDateChoice();
    }

    /// Makes any row the current one and returns its date; 0 in an empty log.
    int GoToAnyRow() {
        if (view.empty()) {
            return 0;
        }
        const int row = Roll(0, static_cast<int>(view.size()) - 1);
        frmMainForm.grdHist.GoToRow(row);
        return view[static_cast<std::size_t>(row)].date;
    }

    void ChangeDate() {
        Tick();
        const int oldDate = GoToAnyRow();
        static_cast<void>(BeginDateChange(frmMainForm.grdHist.Text(0)));
        pendingIsNew = oldDate == 0;
        const int date = AnyDate();
        if (oldDate == 0 || date == oldDate) {
            EndDateChoice();
            return;
        }
        if (HasDate(date)) {
            ExpectDateExists();
            EXPECT_FALSE(TakeChosenDate(TextOf(date)));
        } else {
            const bool agrees = Roll(0, 3) > 0;
            boxes.Expect("Ballhaven", "Are you sure you want to change this date?", BoxButtons::YesNo, BoxIcon::None,
                         agrees ? BoxAnswer::Yes : BoxAnswer::No);
            if (agrees) {
                FindRow(oldDate)->date = date;
                Save();
                pending = date;
            }
            EXPECT_TRUE(TakeChosenDate(TextOf(date)));
        }
        EndDateChoice();
    }

    /// The date behind that of a row of the log, else the one before it; 0 where there is neither. A new draw that
    /// waits for the timer counts as a row without a date while the log is short.
    [[nodiscard]] int DateBeside(int date) const {
        const auto row = static_cast<std::size_t>(std::ranges::find(view, date, &PlainDraw::date) - view.begin());
        if (row + 1 < countedRows) {
            return row + 1 < view.size() ? view[row + 1].date : 0;
        }
        return row > 0 ? view[row - 1].date : 0;
    }

    void Delete() {
        const int date = GoToAnyRow();
        if (date != 0) {
            const bool agrees = Roll(0, 2) > 0;
            boxes.ExpectBeforeLoss("Delete record for " + TextOf(date) + "?", BoxIcon::Critical,
                                   agrees ? BoxAnswer::Yes : BoxAnswer::No);
            if (agrees && HasDate(date)) {
                Current().rows.erase(FindRow(date));
                dirty = true;
            }
            if (agrees) {
                const int next = DateBeside(date);
                Refresh();
                if (next > 0) {
                    ForetellGoingTo(next);
                }
            }
        }
        DeleteDraw();
    }

    /// Types a pick, with a press of the mouse before it or without, from below to above the range.
    void TypeAnyPick() {
        const int date = GoToAnyRow();
        if (Roll(0, 1) == 1) {
            dirty = appState.historyDirty = true;
        }
        if (date == 0) {
            return;
        }
        const int column = Roll(1, picksOfDraw);
        const int value = Roll(-1, 52);
        const bool accepted = value == -1 || (value >= 1 && value <= 49);
        EXPECT_EQ(TypePick(column, value == -1 ? "" : std::to_string(value)), accepted);
        if (accepted && HasDate(date)) {
            FindRow(date)->picks[static_cast<std::size_t>(column - 1)] = value;
        }
    }

    /// What was typed without a press of the mouse goes with the game.
    void Leave() {
        if (dirty) {
            Save();
        }
        Current().rows = Current().file;
        SaveWhatIsDirty();
    }

    void ChooseGame() {
        Leave();
        frmMainForm.cboList[0].Select(Roll(0, 2));
        SwitchGame();
        CutView();
    }

    void CloseAndReopen() {
        Leave();
        StartAgain();
        TakePicks();
        pending = 0;
        SwitchGame();
        CutView();
    }

    /// Dates from before the first draws to behind the last ones.
    int AnyDate() { return Roll(firstDate - 20, firstDate + 1050); }

    void DoAnything() {
        const int roll = Roll(0, 99);
        if (roll < 22) {
            Add();
        } else if (roll < 34) {
            ChangeDate();
        } else if (roll < 44) {
            Delete();
        } else if (roll < 72) {
            TypeAnyPick();
        } else if (roll < 94) {
            Tick();
        } else if (roll < 98) {
            ChooseGame();
        } else {
            CloseAndReopen();
        }
    }

    void CheckTable() {
        const std::vector<PlainDraw>& rows = Current().rows;
        ASSERT_EQ(appState.historyLast + 1, static_cast<int>(rows.size()));
        for (int row = 0; row <= appState.historyLast; ++row) {
            const PlainDraw& draw = rows[static_cast<std::size_t>(row)];
            ASSERT_EQ(appState.HistoryTable(0, row), draw.date) << "row " << row;
            for (int pick = 1; pick <= picksOfDraw; ++pick) {
                ASSERT_EQ(appState.HistoryTable(pick, row), draw.picks[static_cast<std::size_t>(pick - 1)]);
            }
        }
        ASSERT_EQ(appState.historyDirty, dirty);
        ASSERT_EQ(appState.pendingLogDate, pending);
        ASSERT_EQ(frmMainForm.grdHist.RowCount(), static_cast<int>(view.size()));
        ASSERT_EQ(boxes.Left(), 0U);
    }

    static constexpr int firstDate = 3000;

    std::mt19937 random{20021026};
    std::array<PlainGame, 3> games;
    std::vector<PlainDraw> view;
    std::size_t countedRows = 0;
    bool dirty = false;
    int pending = 0;
    bool pendingIsNew = false;
};

TEST_F(AnyOrderOfEdits, LosesNothingOfWhatAPlainModelHas) {
    for (int action = 0; action < 4000 && !HasFailure(); ++action) {
        SCOPED_TRACE("action " + std::to_string(action));
        DoAnything();
        CheckTable();
    }
    Leave();
    for (std::size_t game = 0; game < games.size(); ++game) {
        const std::string file = "GAME0" + std::to_string(game + 1) + ".CDB";
        EXPECT_TRUE(support::historyFileFormat.Same(FileOf(games[game]), directory.Read(file))) << file;
    }
}

}  // namespace
}  // namespace ballhaven
