#include "plays/PlayScreen.h"

#include "forms/MainForm.h"
#include "plays/PlayFile.h"
#include "support/IdleGridView.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

/// A board that only counts how often it is read again.
class CountingBoard : public support::IdleGridView {
  public:
    void ReadAgain() override { ++readings; }

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
