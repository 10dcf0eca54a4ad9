#include "start/LastWords.h"

#include "history/HistoryFile.h"
#include "platform/Services.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/RuntimeFailure.h"
#include "support/HistoryLog.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using Kind = RuntimeFailure::Kind;
using support::NumberGame;

class TheLastWords : public support::HistoryLogTest {
  protected:
    TheLastWords() { PrepareForFailures(); }

    static std::string Told(const std::exception& failure, bool inReading) {
        return platform::services.explainFailure(failure, inReading);
    }

    static void RunSaves() {
        for (const auto& save : platform::services.savesBeforeTheEnd) {
            save();
        }
    }
};

TEST_F(TheLastWords, OfACountNameTheGameAndASmallerHistorySetAsTheWayOut) {
    ShowLog(NumberGame(), {{"01/01/1990", {1, 2, 3, 4, 5, 6}}});
    appState.gameRecord = BuildDefaultGameRecord(1, 0);
    SetField(appState.gameRecord, gameField::name, "Super Lotto");

    EXPECT_EQ(
        Told(RuntimeFailure(Kind::Overflow), true),
        "Overflow: a number does not fit into 16 bits.\n\nThis came up while draws were counted or shown in the "
        "game \"Super Lotto\". The program ends; your draws and plays are saved. Choose a smaller history set for "
        "this game. If it ends again before you can, type in the folder of the program: ballhaven-data set 1 "
        "--history-set 100.");
}

TEST_F(TheLastWords, OfAFileNameItAndTheReasonAndHowToBeginWithAnotherGame) {
    const auto told = [](std::int16_t game) {
        appState.currentGame = game;
        return Told(RuntimeFailure("/data/GAME03.CDB", "Input/output error"), false);
    };
    EXPECT_EQ(told(3),
              "File error: /data/GAME03.CDB\nInput/output error\n\nThe program ends. The files are as they were when "
              "they were last saved. Make it possible to read and write this one, and start again. If it is one of a "
              "game's, another one comes first when you type in the folder of the program: ballhaven-data set --shown "
              "1.");
    EXPECT_TRUE(told(1).ends_with("ballhaven-data set --shown 2."));
}

TEST_F(TheLastWords, OfAnyOtherFailureSayThatNothingWasSaved) {
    support::ResetState();
    EXPECT_EQ(Told(RuntimeFailure(Kind::Overflow), false),
              "Overflow: a number does not fit into 16 bits.\n\nThis came up. The program ends. The files are as they "
              "were when they were last saved; start again, and choose a smaller history set if this comes back.");
}

TEST_F(TheLastWords, SaveTheDrawsAndThePlaysThatAreDirty) {
    ShowLog(NumberGame(), {{"01/01/1990", {1, 2, 3, 4, 5, 6}}});
    SavePlayFile();
    appState.HistoryTable(1, 0) = 7;
    appState.PlayTable(0, 1, 1) = 9;
    const auto before = directory.Files();
    RunSaves();
    EXPECT_EQ(directory.Files(), before) << "nothing is dirty";

    appState.historyDirty = true;
    RunSaves();
    EXPECT_TRUE(FileHolds({{"01/01/1990", {7, 2, 3, 4, 5, 6}}}));
    EXPECT_FALSE(appState.historyDirty);
    EXPECT_EQ(directory.Read("PLAYS01.CDB"), before.at("PLAYS01.CDB"));

    appState.playsDirty = true;
    RunSaves();
    EXPECT_NE(directory.Read("PLAYS01.CDB"), before.at("PLAYS01.CDB"));
    EXPECT_FALSE(appState.playsDirty);
}

}  // namespace
}  // namespace ballhaven
