#include "plays/SinglePlay.h"

#include "plays/PickGrid.h"
#include "screen/MainForm.h"

namespace ballhaven {

void WireSinglePlay() {
    frmMainForm.grdPlay.cellText = PlayBoardText;
}

}  // namespace ballhaven
