#include "plays/SinglePlay.h"

#include "forms/MainForm.h"
#include "plays/PickGrid.h"

namespace ballhaven {

void WireSinglePlay() {
    frmMainForm.grdPlay.cellText = platform::ByRowAndColumn(PlayBoardText);
}

}  // namespace ballhaven
