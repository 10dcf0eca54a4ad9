#include "screen/HotGrid.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"

namespace ballhaven {

void WireHotGrid() {
    frmMainForm.grdHot.cellText = platform::ByRowAndColumn(HotCellValue);
    frmMainForm.grdHot.cellStyle = platform::ByRowAndColumn(HotCellStyle);
}

}  // namespace ballhaven
