#include "screen/HotGrid.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"

namespace ballhaven {

void WireHotGrid() {
    frmMainForm.grdHot.cellText = HotCellValue;
    frmMainForm.grdHot.cellStyle = HotCellStyle;
}

}  // namespace ballhaven
