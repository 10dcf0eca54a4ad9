#include "screen/HotGrid.h"

#include "screen/MainForm.h"
#include "statistics/HotCells.h"

namespace ballhaven {

void WireHotGrid() {
    frmMainForm.grdHot.cellText = HotCellValue;
    frmMainForm.grdHot.cellStyle = HotCellStyle;
}

}  // namespace ballhaven
