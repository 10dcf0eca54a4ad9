#include "history/UnsavedWork.h"

#include "forms/MainForm.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "support/StoredGames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

class UnsavedWork : public support::ShownGame {};

TEST_F(UnsavedWork, BeforeAReloadTheChosenPicksAreSavedTooIfTheirWindowIsOpen) {
    appState.PlayTable(mainPicks, 1, 1) = 12;
    appState.playsDirty = true;
    appState.ShuffleTable(mainPicks, 1) = 30;
    SaveBeforeReload();
    EXPECT_EQ(directory.Read("PLAYS01.CDB").substr(5, 2), "12");
    EXPECT_EQ(directory.Read("SHUFFLE.CDB").substr(0, 2), "  ");
    appState.shuffleWindowOpen = true;
    SaveBeforeReload();
    EXPECT_EQ(directory.Read("SHUFFLE.CDB").substr(0, 2), "30");
}

TEST_F(UnsavedWork, DirtyPlaysAndDrawsAreSavedHistoryFirst) {
    appState.HistoryTable(1, 0) = 33;
    appState.historyDirty = true;
    appState.PlayTable(mainPicks, 1, 1) = 12;
    appState.playsDirty = true;
    std::vector<std::string> saved;
    platform::fileSystem.rename = [&saved](const std::string& from, const std::string& to) {
        saved.push_back(to.substr(to.rfind('/') + 1));
        return platform::SystemFiles().rename(from, to);
    };
    SaveWhatIsDirty();
    platform::fileSystem = platform::SystemFiles();
    EXPECT_EQ(saved, (std::vector<std::string>{"GAME01.CDB", "PLAYS01.CDB"}));
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(64 + 5, 2), "33");
    EXPECT_EQ(directory.Read("PLAYS01.CDB").substr(5, 2), "12");
    EXPECT_FALSE(appState.historyDirty || appState.playsDirty);
}

}  // namespace
}  // namespace ballhaven
