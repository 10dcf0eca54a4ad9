#include "support/qt/TypedLog.h"

#include "forms/MainForm.h"
#include "history/LogEntry.h"
#include "history/PickEntry.h"
#include "state/GameRules.h"
#include "statistics/HotTables.h"

namespace ballhaven::support {

TypedLogTest::TypedLogTest() {
    TakePicks();
}

void TypedLogTest::TakePicks() {
    frmMainForm.grdHist.acceptEdit = [](int column, const std::string& text) {
        return IsPickInRange(CurrentRules(), column, TypedPick(text));
    };
    frmMainForm.grdHist.edited = [](int column, const std::string& text) {
        PostLogEdit(column, text);
        ComputeHotTable();
    };
}

bool TypedLogTest::TypePick(int column, const std::string& text) {
    frmMainForm.grdHist.GoToColumn(column);
    return frmMainForm.grdHist.Edit(column, text);
}

}  // namespace ballhaven::support
