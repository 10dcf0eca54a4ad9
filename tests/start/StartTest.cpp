#include "start/Start.h"

#include "forms/MainForm.h"
#include "platform/Application.h"
#include "platform/CloseDown.h"
#include "platform/Services.h"
#include "platform/controls/Toolkit.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Paths.h"
#include "state/AppState.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <vector>

namespace ballhaven {
namespace {

using platform::services;

/// The start on a program directory of the test's own. Without a toolkit the window is never activated, so that nothing
/// is loaded, also where the program directory is not the test's.
class Starting : public testing::Test {
  protected:
    void SetUp() override {
        appState = AppState{};
        services.executableDirectory = [this] { return directory.Path(); };
        services.endProcess = [this](int exitCode) { exitCodes.push_back(exitCode); };
        services.showMessageBox = [this](const platform::MessageBoxRequest& request) {
            boxes.push_back(request);
            return platform::BoxAnswer::Ok;
        };
        platform::toolkit = nullptr;
    }

    support::TemporaryDirectory directory;
    std::vector<int> exitCodes;
    std::vector<platform::MessageBoxRequest> boxes;
};

TEST_F(Starting, ASecondStartActivatesTheFirstInstanceAndTouchesNoFile) {
    std::vector<std::string> activated;
    std::string ownTitle;
    services.earlierInstanceRuns = [] { return true; };
    services.activateApplication = [&](const std::string& title) {
        activated.push_back(title);
        ownTitle = platform::ApplicationTitle();
        return true;
    };
    StartProgram();
    EXPECT_EQ(activated, (std::vector<std::string>{"Ballhaven"}));
    EXPECT_EQ(ownTitle, "!@#$%^&");
    EXPECT_EQ(exitCodes, (std::vector<int>{0}));
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
    EXPECT_TRUE(directory.Files().empty());
}

TEST_F(Starting, AnInstanceThatDoesNotAnswerIsToldUnderTheProgramsOwnTitle) {
    services.executableDirectory = [] { return std::string("/home/j\xC3\xBCrgen/Ballhaven"); };
    services.earlierInstanceRuns = [] { return true; };
    services.activateApplication = [](const std::string&) { return false; };
    StartProgram();
    EXPECT_EQ(boxes,
              (std::vector<platform::MessageBoxRequest>{
                  {"Ballhaven is in use already, but does not answer, in the folder\n/home/j\xFCrgen/Ballhaven\n\n"
                   "Either another user works with it, who has to close it first, or it hangs: then end its "
                   "process. After that, start Ballhaven again.",
                   platform::BoxButtons::Ok, platform::BoxIcon::Critical, "Ballhaven"}}));
    EXPECT_EQ(exitCodes, (std::vector<int>{0}));
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
}

TEST_F(Starting, AnInstanceThatEndsMeanwhileLeavesItsFolderToThisOne) {
    int asked = 0;
    services.earlierInstanceRuns = [&asked] { return asked++ == 0; };
    services.activateApplication = [](const std::string&) { return false; };
    StartProgram();
    EXPECT_TRUE(frmMainForm.window.IsLoaded());
    EXPECT_EQ(platform::ApplicationTitle(), "Ballhaven");
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(exitCodes.empty());
}

TEST_F(Starting, AFolderThatCannotBeLockedIsToldAndNoWindowOpens) {
    services.executableDirectory = [] { return std::string("/far/away"); };
    services.earlierInstanceRuns = []() -> bool { throw std::system_error(ENOLCK, std::generic_category()); };
    StartProgram();
    EXPECT_EQ(boxes, (std::vector<platform::MessageBoxRequest>{
                         {"Ballhaven cannot make sure that it is the only one to work in the folder\n/far/away\n\n"
                          "The system says: No locks available. Two at a time would overwrite each other's draws. Copy "
                          "the folder to a disk of this computer where you may read and write, and start Ballhaven "
                          "there.",
                          platform::BoxButtons::Ok, platform::BoxIcon::Critical, "Ballhaven"}}));
    EXPECT_EQ(exitCodes, (std::vector<int>{0}));
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
}

TEST_F(Starting, AChangeThatWasDecidedInTheFolderIsFinishedFirst) {
    const support::TemporaryDirectory folder;
    folder.Write("GAME01.CDB.next", "new");
    folder.Write("CHANGE", "put GAME01.CDB\nremove GAME02.CDB\n");
    services.executableDirectory = [&folder] { return folder.Path(); };
    StartProgram();
    EXPECT_TRUE(frmMainForm.window.IsLoaded());
    EXPECT_EQ(folder.Read("GAME01.CDB"), "new");
    EXPECT_FALSE(folder.Has("CHANGE"));
}

TEST_F(Starting, AChangeThatCannotBeFinishedIsToldAndNoWindowOpens) {
    services.executableDirectory = [] { return std::string("/far/away"); };
    platform::fileSystem.open = [](const std::string&, platform::FileAccess) { return -EIO; };
    StartProgram();
    EXPECT_EQ(boxes,
              (std::vector<platform::MessageBoxRequest>{
                  {"Ballhaven cannot finish a change that was begun in the folder\n/far/away\n\n"
                   "The system says: Input/output error. Make sure that you may write there, and start Ballhaven "
                   "again.",
                   platform::BoxButtons::Ok, platform::BoxIcon::Critical, "Ballhaven"}}));
    EXPECT_EQ(exitCodes, (std::vector<int>{0}));
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
}

TEST_F(Starting, WhatWantsTheProgramToEndClosesTheMainWindow) {
    StartProgram();
    bool closed = false;
    frmMainForm.window.unload = [&closed] { closed = true; };
    platform::CloseInOrder();
    EXPECT_TRUE(closed);
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
}

TEST_F(Starting, TheEndThatIsAnnouncedSavesTheHistoryThenThePlays) {
    StartProgram();
    std::vector<std::string> saved;
    platform::fileSystem.rename = [&saved](const std::string& from, const std::string& to) {
        saved.push_back(to.substr(to.rfind(platform::directorySeparator) + 1));
        return platform::SystemFiles().rename(from, to);
    };
    appState.currentGame = 3;
    appState.totalPicks = 6;
    appState.HistoryTable = Table(7, 1000);
    appState.historyLast = 0;
    appState.historyDirty = true;
    appState.playsDirty = true;
    platform::SaveBeforeTheEnd();
    EXPECT_TRUE(frmMainForm.window.IsLoaded());
    EXPECT_EQ(saved, (std::vector<std::string>{"GAME03.CDB", "PLAYS03.CDB"}));
}

TEST_F(Starting, ShowsTheMainWindowBeforeItTouchesAFile) {
    StartProgram();
    EXPECT_TRUE(frmMainForm.window.IsLoaded());
    EXPECT_TRUE(frmMainForm.windowStarting);
    EXPECT_EQ(appState.currentGame, 0);
    EXPECT_TRUE(directory.Files().empty());
}

TEST_F(Starting, ASystemFolderGetsASeparatorUnlessItEndsInOne) {
    const std::string separator(1, platform::directorySeparator);
    services.systemDirectory = [] { return std::string("settings"); };
    StartProgram();
    EXPECT_EQ(appState.windowsDirectory, "settings" + separator);
    frmMainForm.window.unload = nullptr;
    frmMainForm.window.Unload();
    services.systemDirectory = [separator] { return "root" + separator; };
    StartProgram();
    EXPECT_EQ(appState.windowsDirectory, "root" + separator);
}

TEST_F(Starting, AProgramInARootFolderKeepsItsSingleSeparator) {
    const std::string separator(1, platform::directorySeparator);
    services.executableDirectory = [] { return std::string(1, platform::directorySeparator); };
    StartProgram();
    EXPECT_EQ(appState.programDirectory, separator);
}

TEST_F(Starting, AProgramDirectoryGetsASeparatorAtItsEnd) {
    services.executableDirectory = [] { return std::string("folder of the program"); };
    StartProgram();
    EXPECT_EQ(appState.programDirectory, std::string("folder of the program") + platform::directorySeparator);
}

TEST_F(Starting, AnErrorOfTheProgramDirectoryIsPassedOver) {
    services.executableDirectory = []() -> std::string { throw std::runtime_error("no folder"); };
    EXPECT_NO_THROW(StartProgram());
    EXPECT_EQ(appState.programDirectory, "");
    EXPECT_TRUE(frmMainForm.window.IsLoaded());
}

TEST_F(Starting, TheDatePatternIsLookedForInTheSystemsFolder) {
    std::string askedFor;
    services.systemDirectory = [] { return std::string("settings"); };
    services.shortDatePattern = [&askedFor](const std::string& folder) {
        askedFor = folder;
        return std::string("dd.MM.yyyy");
    };
    StartProgram();
    EXPECT_EQ(askedFor, std::string("settings") + platform::directorySeparator);
    EXPECT_EQ(appState.shortDateFormat, "d.m.y");
}

TEST_F(Starting, AnEmptyPatternAndOneWithoutASeparatorGiveMonthDayYear) {
    for (const char* pattern : {"", "yyyyMMdd"}) {
        services.shortDatePattern = [pattern](const std::string&) { return std::string(pattern); };
        frmMainForm.window.unload = nullptr;
        frmMainForm.window.Unload();
        StartProgram();
        EXPECT_EQ(appState.shortDateFormat, "m/d/y") << pattern;
    }
}

}  // namespace
}  // namespace ballhaven
