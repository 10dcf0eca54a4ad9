#include "start/LastWords.h"

#include "history/HistoryFile.h"
#include "platform/Services.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"

#include <exception>
#include <string>

namespace ballhaven {

namespace {

void SaveDirtyDraws() {
    if (appState.historyDirty) {
        SaveHistory(0);
    }
}

void SaveDirtyPlays() {
    if (appState.playsDirty) {
        SavePlayFile();
        appState.playsDirty = false;
    }
}

bool IsFileError(const std::exception& failure) {
    const auto* const known = dynamic_cast<const RuntimeFailure*>(&failure);
    return known != nullptr && known->GetKind() == RuntimeFailure::Kind::FileError;
}

/// The game in which a failure came up; nothing before one is current.
std::string InWhichGame() {
    const std::string name = modUTILS::Trimmed(GameName(appState.gameRecord));
    return name.empty() ? std::string() : " in the game \"" + name + "\"";
}

/// For a failure that comes again at each start: the companion changes what is shown first, or how much of it.
std::string Companion(const std::string& words) {
    return "type in the folder of the program: ballhaven-data set " + words + ".";
}

std::string WayOut(const std::exception& failure, bool inReading) {
    if (IsFileError(failure)) {
        const std::string anotherSlot = appState.currentGame == 1 ? "2" : "1";
        return "The program ends. The files are as they were when they were last saved. Make it possible to read and "
               "write this one, and start again. If it is one of a game's, another one comes first when you " +
               Companion("--shown " + anotherSlot);
    }
    if (inReading) {
        return "This came up while draws were counted or shown" + InWhichGame() +
               ". The program ends; your draws and plays are saved. Choose a smaller history set for this game. If it "
               "ends again before you can, " +
               Companion(std::to_string(appState.currentGame) + " --history-set 100");
    }
    return "This came up" + InWhichGame() +
           ". The program ends. The files are as they were when they were last saved; start again, and choose a "
           "smaller history set if this comes back.";
}

}  // namespace

void PrepareForFailures() {
    platform::services.savesBeforeTheEnd = {SaveDirtyDraws, SaveDirtyPlays};
    platform::services.explainFailure = [](const std::exception& failure, bool inReading) {
        return failure.what() + std::string("\n\n") + WayOut(failure, inReading);
    };
}

}  // namespace ballhaven
