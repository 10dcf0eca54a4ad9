#include "tools/FloorCheck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace ballhaven::tools {
namespace {

namespace fs = std::filesystem;
using Faults = std::vector<std::string>;

constexpr const char* list = R"(# folders, then rooms

folder platform
folder platform/qt
folder state
folder history
folder start

0 platform/Window
0 platform/qt/WindowWidget
1 state/Dates
3 history/View
5 start/main
)";

/// A small source tree that stands, to be damaged by each test.
class FloorCheckTest : public testing::Test {
  protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        root = fs::path(testing::TempDir()) / ("floors of " + std::string(test->name()));
        fs::remove_all(root);
        Write("docs/floors.txt", list);
        Write("src/platform/Window.h", "#pragma once\n#include <string>\n");
        Write("src/platform/qt/WindowWidget.h", "#include \"platform/Window.h\"\n#include <QWidget>\n");
        Write("src/state/Dates.h", "#pragma once\n");
        Write("src/state/Dates.cpp", "#include \"state/Dates.h\"\n\n#include \"platform/Window.h\"\n");
        Write("src/history/View.cpp", "#include \"state/Dates.h\"\n");
        Write("src/start/main.cpp", "#include \"platform/qt/WindowWidget.h\"\n");
    }

    void TearDown() override { fs::remove_all(root); }

    void Write(const std::string& file, const std::string& text) const {
        fs::create_directories((root / file).parent_path());
        std::ofstream(root / file) << text;
    }

    /// Adds lines to docs/floors.txt.
    void List(const std::string& lines) const { std::ofstream(root / "docs/floors.txt", std::ios::app) << lines; }

    fs::path root;
};

TEST_F(FloorCheckTest, ATreeWhoseIncludesGoDownHasNoFaults) {
    EXPECT_EQ(FloorFaults(root), Faults{});
}

TEST_F(FloorCheckTest, AnUpwardIncludeNamesBothRoomsAndTheirFloors) {
    List("2 history/Form\n");
    Write("src/history/View.h", "");
    Write("src/history/Form.cpp", "#include \"history/View.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"history/Form (floor 2) includes history/View (floor 3), which is above it"}));
}

TEST_F(FloorCheckTest, AnUpwardIncludeInHeaderAndSourceOfARoomIsOneFault) {
    List("2 history/Form\n");
    Write("src/history/View.h", "");
    Write("src/history/Form.h", "#include \"history/View.h\"\n");
    Write("src/history/Form.cpp", "#include \"history/View.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"history/Form (floor 2) includes history/View (floor 3), which is above it"}));
}

TEST_F(FloorCheckTest, AnIncludeOfTheSameFloorAndFolderIsAllowed) {
    List("1 state/Texts\n");
    Write("src/state/Texts.h", "#include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), Faults{});
}

TEST_F(FloorCheckTest, AnIncludeOfAFolderThatStandsBehindNamesBothRoomsOnWhateverFloor) {
    List("0 history/Pages\n");
    Write("src/history/Pages.h", "");
    Write("src/state/Dates.cpp", "#include \"history/Pages.h\"\n");

    EXPECT_EQ(FloorFaults(root),
              (Faults{"state/Dates includes history/Pages, but the folder history stands behind state"}));
}

TEST_F(FloorCheckTest, AFolderWithinAnotherHasAPlaceOfItsOwn) {
    List("5 platform/Application\n");
    Write("src/platform/Application.cpp", "#include \"platform/qt/WindowWidget.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"platform/Application includes platform/qt/WindowWidget, but the folder "
                                         "platform/qt stands behind platform"}));
}

TEST_F(FloorCheckTest, AnIncludeThatRunsUpInBothOrdersIsTwoFaults) {
    Write("src/history/View.h", "");
    Write("src/state/Dates.h", "#include \"history/View.h\"\n");
    Write("src/history/View.cpp", "");

    EXPECT_EQ(FloorFaults(root),
              (Faults{"state/Dates (floor 1) includes history/View (floor 3), which is above it",
                      "state/Dates includes history/View, but the folder history stands behind state"}));
}

TEST_F(FloorCheckTest, ACircleOfHeadersNamesEveryRoomOfIt) {
    List("1 state/Picks\n1 state/Texts\n");
    Write("src/state/Dates.h", "#include \"state/Picks.h\"\n");
    Write("src/state/Picks.h", "#include \"state/Texts.h\"\n");
    Write("src/state/Texts.h", "  #  include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"a circle of rooms: state/Dates, state/Picks, state/Texts"}));
}

TEST_F(FloorCheckTest, TwoSourcesThatIncludeEachOthersHeadersAreACircle) {
    List("1 state/Texts\n");
    Write("src/state/Dates.cpp", "#include \"state/Texts.h\"\n");
    Write("src/state/Texts.h", "");
    Write("src/state/Texts.cpp", "#include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"a circle of rooms: state/Dates, state/Texts"}));
}

TEST_F(FloorCheckTest, CirclesThatShareARoomAreOneAndRoomsAboveAndBelowAreNotInIt) {
    List("1 state/Below\n1 state/Picks\n1 state/Texts\n");
    Write("src/state/Below.h", "");
    Write("src/state/Dates.h", "#include \"state/Picks.h\"\n#include \"state/Texts.h\"\n");
    Write("src/state/Picks.h", "#include \"state/Dates.h\"\n#include \"state/Below.h\"\n");
    Write("src/state/Texts.h", "#include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"a circle of rooms: state/Dates, state/Picks, state/Texts"}));
}

TEST_F(FloorCheckTest, TwoCirclesAreNamedEachByItself) {
    List("1 state/Texts\n3 history/Sets\n");
    Write("src/state/Dates.h", "#include \"state/Texts.h\"\n");
    Write("src/state/Texts.h", "#include \"state/Dates.h\"\n");
    Write("src/history/View.h", "#include \"history/Sets.h\"\n");
    Write("src/history/Sets.h", "#include \"history/View.h\"\n");

    EXPECT_EQ(FloorFaults(root),
              (Faults{"a circle of rooms: history/Sets, history/View", "a circle of rooms: state/Dates, state/Texts"}));
}

TEST_F(FloorCheckTest, AHeaderThatIncludesItselfIsAFault) {
    Write("src/state/Dates.h", "#include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/state/Dates.h includes state/Dates.h of its own room"}));
}

TEST_F(FloorCheckTest, AnIncludeOfASourceOfTheOwnRoomIsAFault) {
    Write("src/state/Dates.h", "#include \"state/Dates.cpp\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/state/Dates.h includes state/Dates.cpp of its own room"}));
}

TEST_F(FloorCheckTest, TwoChainsToOneFileAreNoCircle) {
    Write("src/state/Dates.cpp", "#include \"state/Dates.h\"\n#include \"platform/Window.h\"\n");
    Write("src/state/Dates.h", "#include \"platform/Window.h\"\n");

    EXPECT_EQ(FloorFaults(root), Faults{});
}

TEST_F(FloorCheckTest, AFileInNoRoomIsAFault) {
    Write("src/state/Forgotten.h", "");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/state/Forgotten.h is in no room of docs/floors.txt"}));
}

TEST_F(FloorCheckTest, ARoomWithoutFilesIsAFault) {
    List("1 state/Texts\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt names state/Texts, which has no file in src"}));
}

TEST_F(FloorCheckTest, ARoomOnTwoFloorsIsAFault) {
    List("2 state/Dates\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt names state/Dates twice"}));
}

TEST_F(FloorCheckTest, AFolderThatIsNotInTheListIsAFaultOnceForAllItsRooms) {
    List("4 roof/Chimney\n4 roof/Tiles\n");
    Write("src/roof/Chimney.h", "");
    Write("src/roof/Tiles.h", "#include \"roof/Chimney.h\"\n#include \"history/View.h\"\n");
    Write("src/history/View.h", "");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/roof has no place in the order of folders in docs/floors.txt"}));
}

TEST_F(FloorCheckTest, AFolderWithoutRoomsIsAFault) {
    List("folder roof\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt orders the folder roof, which has no room in src"}));
}

TEST_F(FloorCheckTest, AFolderWithTwoPlacesIsAFaultAndKeepsItsFirst) {
    List("folder platform\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt orders the folder platform twice"}));
}

TEST_F(FloorCheckTest, ALineThatIsNeitherFolderNorRoomIsAFault) {
    List("6 roof/Chimney\nfolder\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt: \"6 roof/Chimney\" is neither a folder nor a floor and room",
                                         "docs/floors.txt: \"folder\" is neither a folder nor a floor and room"}));
}

TEST_F(FloorCheckTest, QtOutsideThePlatformIsAFaultOnEveryFloor) {
    Write("src/platform/Window.h", "#include <QtGlobal>\n");
    Write("src/start/main.cpp", "#include <QApplication>\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/platform/Window.h includes QtGlobal: Qt stays in src/platform/qt",
                                         "src/start/main.cpp includes QApplication: Qt stays in src/platform/qt"}));
}

TEST_F(FloorCheckTest, OnlyTheStartIncludesTheWidgets) {
    Write("src/history/View.cpp", "#include \"platform/qt/WindowWidget.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/history/View.cpp includes platform/qt/WindowWidget.h: only the start "
                                         "sees behind the platform"}));
}

TEST_F(FloorCheckTest, AnIncludeOfAFileThatDoesNotExistIsAFault) {
    Write("src/history/View.cpp", "#include \"Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/history/View.cpp includes Dates.h, which is no file of src"}));
}

TEST_F(FloorCheckTest, AnEmptyFolderIsNoHouse) {
    fs::remove_all(root);
    fs::create_directories(root);

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt cannot be read", "src is no directory"}));
}

TEST_F(FloorCheckTest, EverySourceButTheEntryOfTheProgramNeedsItsFileOfTests) {
    EXPECT_EQ(UntestedRooms(root), (Faults{"src/history/View.cpp has no tests/history/ViewTest.cpp",
                                           "src/state/Dates.cpp has no tests/state/DatesTest.cpp"}));
}

TEST_F(FloorCheckTest, AFileOfTestsCountsForTheRoomOfItsFolderAndName) {
    Write("tests/state/DatesTest.cpp", "");
    Write("tests/state/ViewTest.cpp", "");

    EXPECT_EQ(UntestedRooms(root), (Faults{"src/history/View.cpp has no tests/history/ViewTest.cpp"}));
}

}  // namespace
}  // namespace ballhaven::tools
