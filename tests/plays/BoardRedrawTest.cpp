#include "plays/BoardRedraw.h"

#include "forms/MainForm.h"
#include "plays/PlayFile.h"

#include <gtest/gtest.h>

#include <optional>

namespace ballhaven {
namespace {

/// A board that only counts how often it is read again.
class CountingBoard : public platform::GridView {
  public:
    void Refresh() override {}
    void TakeFocus() override {}
    void BringToFront() override {}
    [[nodiscard]] platform::Bounds ScreenPlace() const override { return {}; }
    void ReadAgain() override { ++readings; }
    void Repaint() override {}
    void ShowCurrentCell() override {}
    bool EndEdit() override { return true; }
    void SelectCellText() override {}
    [[nodiscard]] bool HasSelectedText() const override { return false; }
    [[nodiscard]] int FirstVisibleRow() const override { return 0; }
    [[nodiscard]] int VisibleRows() const override { return 0; }
    [[nodiscard]] std::optional<int> RowTop(int) const override { return {}; }

    int readings = 0;
};

TEST(RefreshPlayGrids, HasTheBoardOfTheMainWindowReadAgain) {
    CountingBoard board;
    frmMainForm.grdPlay.view = &board;
    RefreshPlayGrids();
    EXPECT_EQ(board.readings, 1);
    ClearAllPlays();
    EXPECT_EQ(board.readings, 2);
    frmMainForm.grdPlay.view = nullptr;
}

}  // namespace
}  // namespace ballhaven
