#include "history/HistoryRefresh.h"

#include "forms/MainForm.h"
#include "history/UnsavedWork.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "support/IdleGridView.h"
#include "support/MessageScript.h"
#include "support/StoredGames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxButtons;
using platform::BoxIcon;

class RefreshingTheHistory : public support::ShownGame {};

TEST_F(RefreshingTheHistory, SavesADirtyHistoryOnly) {
    const std::string before = directory.Read("GAME01.CDB");
    appState.HistoryTable(1, 0) = 40;
    RefreshHistory(-1);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
    appState.historyDirty = true;
    RefreshHistory(-1);
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(64 + 5, 2), "40");
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(RefreshingTheHistory, GoesToTheDateThatIsAskedFor) {
    RefreshHistory(support::SerialOf("01/20/1990"));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/20/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
    appState.pendingLogDate = support::SerialOf("01/21/1990");
    RefreshHistory(support::SerialOf("01/21/1990"));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/21/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1);
}

TEST_F(RefreshingTheHistory, SaysSoWhereTheDateIsNotInTheSetAndGoesToTheNewestDraw) {
    support::MessageScript boxes;
    boxes.Expect("Ballhaven",
                 "The record you have added cannot be displayed within the selected history set.\n"
                 "If you wish to see this record, select larger history set.",
                 BoxButtons::Ok, BoxIcon::None);
    RefreshHistory(support::SerialOf("01/02/1990"));
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/25/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(RefreshingTheHistory, FindsTheDrawInTheFirstRowOfTheSetToo) {
    const support::MessageScript boxes;
    RefreshHistory(support::SerialOf("01/16/1990"));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/16/1990");
}

TEST_F(RefreshingTheHistory, SaysNothingWhileANewDrawsDateIsBeingChosen) {
    support::MessageScript boxes;
    appState.pendingLogDate = -1;
    RefreshHistory(support::SerialOf("01/02/1990"));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/25/1990");
}

TEST_F(RefreshingTheHistory, AnEmptyHistoryHasTablesOfOneRow) {
    appState.historyLast = -1;
    frmMainForm.cmdColorHist.visible = true;
    RefreshHistory(-1);
    EXPECT_FALSE(frmMainForm.cmdColorHist.visible);
    EXPECT_EQ(appState.historyView.Rows(), 1);
    EXPECT_EQ(appState.hotNumberTable.Rows(), 1);
    EXPECT_EQ(appState.hotPairTable.Rows(), 1);
    EXPECT_EQ(appState.pairedOnceTable.Rows(), 1);
    EXPECT_EQ(appState.repeaterTable.Rows(), 1);
    EXPECT_TRUE(appState.hotNumberTable.Has(3, 0));
    EXPECT_TRUE(appState.hotPairTable.Has(3, 0));
    EXPECT_TRUE(appState.pairedOnceTable.Has(2, 0));
    EXPECT_TRUE(appState.repeaterTable.Has(2, 0));
    EXPECT_EQ(frmMainForm.grdHist.RowCount(), 0);
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 0);
}

TEST_F(RefreshingTheHistory, TheMarkOfTheFilesHeaderStaysWhenItIsSaved) {
    const auto saved = [this](void (*save)()) {
        directory.Write("GAME01.CDB", directory.Read("GAME01.CDB").replace(11, 2, "AB"));
        appState.historyDirty = true;
        save();
        return directory.Read("GAME01.CDB").substr(11, 2);
    };
    EXPECT_EQ(saved([] { RefreshHistory(-1); }), "AB");
    EXPECT_EQ(saved(SaveWhatIsDirty), "AB");
}

}  // namespace
}  // namespace ballhaven
