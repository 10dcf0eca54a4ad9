#include "start/Start.h"

#include "forms/MainForm.h"
#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/controls/Toolkit.h"
#include "platform/files/Paths.h"
#include "state/AppState.h"
#include "support/MainFormReset.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::services;

/// The start on a program directory of the test's own. Without a toolkit the window is never activated, so that nothing
/// is loaded, also where the program directory is not the test's.
class Starting : public testing::Test {
  protected:
    void SetUp() override {
        support::ResetMainForm();
        appState = AppState{};
        frmMainForm.window.controls.clear();
        frmMainForm.window.menus.clear();
        frmMainForm.window.timers.clear();
        services = platform::Services{};
        services.executableDirectory = [this] { return directory.Path(); };
        services.endProcess = [this](int exitCode) { exitCodes.push_back(exitCode); };
        platform::toolkit = nullptr;
    }

    void TearDown() override {
        platform::toolkit = runningToolkit;
        services = platform::Services{};
        platform::SetApplicationTitle("Ballhaven");
        support::ResetMainForm();
    }

    support::TemporaryDirectory directory;
    std::vector<int> exitCodes;

  private:
    platform::Toolkit* const runningToolkit = platform::toolkit;
};

TEST_F(Starting, ASecondStartActivatesTheFirstInstanceAndTouchesNoFile) {
    std::vector<std::string> activated;
    std::string ownTitle;
    services.earlierInstanceRuns = [] { return true; };
    services.activateApplication = [&](const std::string& title) {
        activated.push_back(title);
        ownTitle = platform::ApplicationTitle();
    };
    StartProgram();
    EXPECT_EQ(activated, (std::vector<std::string>{"Ballhaven"}));
    EXPECT_EQ(ownTitle, "!@#$%^&");
    EXPECT_EQ(exitCodes, (std::vector<int>{0}));
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
    EXPECT_TRUE(directory.Files().empty());
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
    services.executableDirectory = [separator] { return separator; };
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
