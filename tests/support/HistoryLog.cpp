#include "support/HistoryLog.h"

#include "forms/MainForm.h"
#include "history/HistoryFile.h"
#include "history/HistoryRefresh.h"
#include "platform/Services.h"
#include "platform/files/FileSystem.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "support/FreshStart.h"

#include <map>

namespace ballhaven::support {

const RecordFormat historyFileFormat{64,
                                     1001,
                                     {{"date", 1, 4},
                                      {"pick 1", 6, 2},
                                      {"pick 2", 9, 2},
                                      {"pick 3", 12, 2},
                                      {"pick 4", 15, 2},
                                      {"pick 5", 18, 2},
                                      {"pick 6", 21, 2},
                                      {"pick 7", 24, 2},
                                      {"pick 8", 27, 2},
                                      {"pick 9", 30, 2},
                                      {"pick 10", 33, 2}}};

std::string HistoryFileOf(const std::vector<Draw>& draws) {
    std::map<int, std::string> records = {{1, "10-26-2002"}};
    int number = 2;
    for (const Draw& draw : draws) {
        std::string record = Padded(std::to_string(SerialOf(draw.date)), 5);
        for (const int pick : draw.picks) {
            const std::string digits = pick < 0 ? "" : std::to_string(pick);
            record += std::string(2 - digits.size(), ' ') + digits + ' ';
        }
        records[number++] = record;
    }
    return historyFileFormat.File(records);
}

std::vector<Draw> DailyDraws(int count) {
    std::vector<Draw> draws;
    const std::int16_t firstDay = SerialOf("01/01/1990");
    for (int day = 0; day < count; ++day) {
        draws.push_back({SerialToDate(static_cast<std::int16_t>(firstDay + day)), {day + 1, day + 2, day + 3}});
    }
    return draws;
}

HistoryLogTest::HistoryLogTest() {
    platform::services.today = [] { return std::chrono::year{1990} / std::chrono::March / 5; };
    platform::fileSystem.flush = [](int) { return 0; };  // waiting for the disk takes most of the time
    StartAgain();
}

void HistoryLogTest::StartAgain() const {
    LayOutAfresh();
    appState.programDirectory = directory.Path();
    frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
}

void HistoryLogTest::ShowLog(const Game& game, const std::vector<Draw>& draws) const {
    SetUpGame(game);
    frmMainForm.logLastColumn = appState.totalPicks;
    SetUpDraws(draws);
    const std::string file = appState.currentGame < 10 ? "GAME0" : "GAME";
    directory.Write(file + std::to_string(appState.currentGame) + ".CDB", TableAsFile());
    LoadHistory();
    RefreshHistory(-1);
}

void HistoryLogTest::GoToDate(const std::string& date) {
    for (int row = 0; row < frmMainForm.grdHist.RowCount(); ++row) {
        if (frmMainForm.grdHist.cellText({datePane, row, 0}) == date) {
            frmMainForm.grdHist.GoToRow(row);
            return;
        }
    }
    ADD_FAILURE() << "not in the log: " << date;
}

std::vector<std::string> HistoryLogTest::ShownDates() {
    std::vector<std::string> dates;
    for (int row = 0; row < frmMainForm.grdHist.RowsRead(); ++row) {
        dates.push_back(frmMainForm.grdHist.cellText({datePane, row, 0}).value_or("none"));
    }
    return dates;
}

std::vector<std::string> HistoryLogTest::CurrentRow() {
    std::vector<std::string> cells;
    for (int column = 0; column <= appState.totalPicks; ++column) {
        cells.push_back(frmMainForm.grdHist.Text(column));
    }
    return cells;
}

std::string HistoryLogTest::TableAsFile() {
    std::vector<Draw> draws;
    for (int row = 0; row <= appState.historyLast; ++row) {
        draws.push_back({SerialToDate(appState.HistoryTable(0, row)), {}});
        for (int column = 1; column <= appState.totalPicks; ++column) {
            draws.back().picks.push_back(appState.HistoryTable(column, row));
        }
    }
    return HistoryFileOf(draws);
}

::testing::AssertionResult HistoryLogTest::FileHolds(const std::vector<Draw>& draws) const {
    const std::string file = appState.currentGame < 10 ? "GAME0" : "GAME";
    return historyFileFormat.Same(HistoryFileOf(draws),
                                  directory.Read(file + std::to_string(appState.currentGame) + ".CDB"));
}

}  // namespace ballhaven::support
