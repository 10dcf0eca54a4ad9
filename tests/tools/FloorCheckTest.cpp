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

/// A small source tree that stands, to be damaged by each test.
class FloorCheckTest : public testing::Test {
  protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        root = fs::path(testing::TempDir()) / ("floors of " + std::string(test->name()));
        fs::remove_all(root);
        Write("docs/floors.txt",
              "# floor and room\n\n0 platform/Window\n0 platform/qt/WindowWidget\n1 state/Dates\n3 history/View\n5 "
              "main\n");
        Write("src/platform/Window.h", "#pragma once\n#include <string>\n");
        Write("src/platform/qt/WindowWidget.h", "#include \"platform/Window.h\"\n#include <QWidget>\n");
        Write("src/state/Dates.h", "#pragma once\n");
        Write("src/state/Dates.cpp", "#include \"state/Dates.h\"\n\n#include \"platform/Window.h\"\n");
        Write("src/history/View.cpp", "#include \"state/Dates.h\"\n");
        Write("src/main.cpp", "#include \"platform/qt/WindowWidget.h\"\n");
    }

    void TearDown() override { fs::remove_all(root); }

    void Write(const std::string& file, const std::string& text) const {
        fs::create_directories((root / file).parent_path());
        std::ofstream(root / file) << text;
    }

    fs::path root;
};

TEST_F(FloorCheckTest, ATreeWhoseIncludesGoDownHasNoFaults) {
    EXPECT_EQ(FloorFaults(root), Faults{});
}

TEST_F(FloorCheckTest, AnUpwardIncludeNamesBothFilesAndTheirFloors) {
    Write("src/history/View.h", "");
    Write("src/state/Dates.cpp", "#include \"history/View.h\"\n");

    EXPECT_EQ(FloorFaults(root),
              (Faults{"src/state/Dates.cpp (floor 1) includes src/history/View.h (floor 3), which is above it"}));
}

TEST_F(FloorCheckTest, AnIncludeOfTheSameFloorIsAllowed) {
    Write("docs/floors.txt",
          "0 platform/Window\n0 platform/qt/WindowWidget\n1 state/Dates\n1 state/Texts\n3 history/View\n5 main\n");
    Write("src/state/Texts.h", "#include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), Faults{});
}

TEST_F(FloorCheckTest, ALoopIsShownFromItsFirstFileBackToIt) {
    Write("docs/floors.txt",
          "0 platform/Window\n0 platform/qt/WindowWidget\n1 state/Dates\n1 state/Picks\n1 state/Texts\n3 history/View\n"
          "5 main\n");
    Write("src/state/Dates.h", "#include \"state/Picks.h\"\n");
    Write("src/state/Picks.h", "#include \"state/Texts.h\"\n");
    Write("src/state/Texts.h", "  #  include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root),
              (Faults{"a loop of includes: src/state/Dates.h > src/state/Picks.h > src/state/Texts.h > "
                      "src/state/Dates.h"}));
}

TEST_F(FloorCheckTest, AFileThatIncludesItselfIsALoop) {
    Write("src/state/Dates.h", "#include \"state/Dates.h\"\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"a loop of includes: src/state/Dates.h > src/state/Dates.h"}));
}

TEST_F(FloorCheckTest, TwoChainsToOneFileAreNoLoop) {
    Write("src/state/Dates.cpp", "#include \"state/Dates.h\"\n#include \"platform/Window.h\"\n");
    Write("src/state/Dates.h", "#include \"platform/Window.h\"\n");

    EXPECT_EQ(FloorFaults(root), Faults{});
}

TEST_F(FloorCheckTest, AFileInNoRoomIsAFault) {
    Write("src/state/Forgotten.h", "");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/state/Forgotten.h is in no room of docs/floors.txt"}));
}

TEST_F(FloorCheckTest, ARoomWithoutFilesIsAFault) {
    fs::remove(root / "src/history/View.cpp");

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt names history/View, which has no file in src"}));
}

TEST_F(FloorCheckTest, ARoomOnTwoFloorsIsAFault) {
    std::ofstream(root / "docs/floors.txt", std::ios::app) << "2 state/Dates\n";

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt names state/Dates twice"}));
}

TEST_F(FloorCheckTest, ALineThatIsNoRoomIsAFault) {
    std::ofstream(root / "docs/floors.txt", std::ios::app) << "6 roof/Chimney\n";

    EXPECT_EQ(FloorFaults(root), (Faults{"docs/floors.txt: \"6 roof/Chimney\" is no floor and room"}));
}

TEST_F(FloorCheckTest, QtOutsideThePlatformIsAFaultOnEveryFloor) {
    Write("src/platform/Window.h", "#include <QtGlobal>\n");
    Write("src/main.cpp", "#include <QApplication>\n");

    EXPECT_EQ(FloorFaults(root), (Faults{"src/main.cpp includes QApplication: Qt stays in src/platform/qt",
                                         "src/platform/Window.h includes QtGlobal: Qt stays in src/platform/qt"}));
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

}  // namespace
}  // namespace ballhaven::tools
