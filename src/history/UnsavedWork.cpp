#include "history/UnsavedWork.h"

#include "forms/MainForm.h"
#include "history/HistoryFile.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "wheels/ShuffleFile.h"

namespace ballhaven {

void SaveWhatIsDirty() {
    frmMainForm.grdHist.EndEdit();
    if (appState.historyDirty) {
        SaveHistory(0);
    }
    if (appState.playsDirty) {
        appState.playsDirty = false;
        SavePlayFile();
    }
}

void SaveBeforeReload() {
    SaveWhatIsDirty();
    if (appState.shuffleWindowOpen) {
        SaveShuffleFile();
    }
}

}  // namespace ballhaven
