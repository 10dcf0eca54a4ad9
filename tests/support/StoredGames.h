#pragma once

#include "forms/MainForm.h"
#include "history/GameSwitch.h"
#include "history/HistoryFile.h"
#include "screen/HotCells.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/Games.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven::support {

/// A program directory, and the main window without a toolkit as the program wires it for reading.
class StoredGames : public testing::Test {
  protected:
    void SetUp() override {
        LayOutMainForm();
        appState.programDirectory = directory.Path();
        frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
        frmMainForm.grdHot.cellText = platform::ByRowAndColumn(HotCellValue);
    }

    /// Stores a configured game in a slot of the game table.
    static void Configure(int slot, int gameType, int mainPicks, int bonusPicks, const std::string& setSize = "010") {
        OpenGameTable();
        appState.gameRecord = BuildDefaultGameRecord(slot, gameType);
        modUTILS::SetColumns(appState.gameRecord, 4, modUTILS::FixedWidth("Game " + std::to_string(slot), 20));
        modUTILS::SetColumns(appState.gameRecord, 27, setSize);
        modUTILS::SetColumns(appState.gameRecord, 46, modUTILS::ZeroPadded(mainPicks, 2));
        modUTILS::SetColumns(appState.gameRecord, 49, std::to_string(bonusPicks));
        SaveGameRecord(slot);
    }

    static void StoreDraws(int slot, const std::vector<Draw>& draws) {
        appState.currentGame = static_cast<std::int16_t>(slot);
        LoadGameRecord(slot);
        LoadHistory();
        SetUpDraws(draws);
        SaveHistory(0);
        appState.currentGame = 0;
    }

    /// Days in a row from 1 January 1990, with picks that tell the rows apart.
    static std::vector<Draw> Days(int count, int picks) {
        std::vector<Draw> draws;
        for (int day = 0; day < count; ++day) {
            const int month = day / 28 + 1;
            const std::string date = modUTILS::ZeroPadded(month, 2) + "/" + modUTILS::ZeroPadded(day % 28 + 1, 2);
            draws.push_back({date + "/1990", std::vector<int>(static_cast<std::size_t>(picks), day % 40 + 1)});
        }
        return draws;
    }

    /// Columns 1-2 and 4 of the system's record: the slot shown last and the order.
    static void StoreSystem(const std::string& slot, const std::string& order) {
        OpenGameTable();
        modUTILS::SetColumns(appState.systemRecord, 1, slot);
        modUTILS::SetColumns(appState.systemRecord, 4, order);
        SaveSystemRecord();
    }

    static void Select(int slot) {
        frmMainForm.gameLoading = true;
        frmMainForm.cboList[0].Select(slot - 1);
        frmMainForm.gameLoading = false;
    }

    TemporaryDirectory directory;
};

/// The first of them with 25 draws, of which it shows the last ten, the oldest first.
class ShownGame : public StoredGames {
  protected:
    void SetUp() override {
        StoredGames::SetUp();
        Configure(1, 0, 2, 0, "010");
        StoreDraws(1, Days(25, 2));
        StoreSystem("01", "1");
        SwitchGame();
    }
};

}  // namespace ballhaven::support
