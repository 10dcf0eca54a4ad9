#include "tools/NewFolder.h"

#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/MendedFolder.h"
#include "state/modUTILS.h"

#include <vector>

namespace ballhaven::tools {

namespace {

/// The first data file that stands in a folder; the empty text in a folder without data.
std::string FindDataFile(const std::filesystem::path& folder) {
    std::vector<std::string> names = {"LOTTOSYS", "SHUFFLE.CDB"};
    for (int slot = 1; slot <= gameSlots; ++slot) {
        names.push_back("GAME" + modUTILS::ZeroPadded(slot, 2) + ".CDB");
        names.push_back("PLAYS" + modUTILS::ZeroPadded(slot, 2) + ".CDB");
    }
    for (const std::string& name : names) {
        if (std::filesystem::exists(folder / name)) {
            return name;
        }
    }
    return {};
}

}  // namespace

std::string BeginFolder(const std::filesystem::path& folder, FolderKind kind) {
    if (!std::filesystem::is_directory(folder)) {
        return folder.string() + " is no folder.";
    }
    if (const std::string name = FindDataFile(folder); !name.empty()) {
        return folder.string() + " has a " + name + " already; its games stay as they are.";
    }
    appState.programDirectory = (folder / "").string();
    OpenGameTable();
    if (kind == FolderKind::Mended) {
        appState.systemRecord = WithMendedMark(appState.systemRecord);
        SaveSystemRecord();
    }
    return {};
}

}  // namespace ballhaven::tools
