#include "plays/BoardRedraw.h"

#include "forms/MainForm.h"

namespace ballhaven {

void RefreshPlayGrids() {
    frmMainForm.grdPlay.ReadAgain();
}

}  // namespace ballhaven
