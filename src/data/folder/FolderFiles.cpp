#include "data/folder/FolderFiles.h"

#include "data/folder/Refusal.h"
#include "platform/files/DurableFile.h"
#include "platform/files/Paths.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/modUTILS.h"
#include "wheels/ChosenRecord.h"

#include <algorithm>
#include <filesystem>

namespace ballhaven::data {

namespace {

FolderFile FileOfSlot(const std::string& stem, int slot, int recordCount) {
    return {stem + modUTILS::ZeroPadded(slot, 2) + ".CDB", gameRecordLength, recordCount};
}

}  // namespace

FolderFile GameTableFile() {
    return {"LOTTOSYS", gameRecordLength, 1 + gameSlots};
}

FolderFile HistoryFileOf(int slot) {
    return FileOfSlot("GAME", slot, 1 + historyRows);
}

FolderFile PlayFileOf(int slot) {
    return FileOfSlot("PLAYS", slot, playCount);
}

FolderFile ChosenPicksFile() {
    return {"SHUFFLE.CDB", chosenRecordLength, 2 * gameSlots};
}

std::vector<FolderFile> AllFolderFiles() {
    std::vector<FolderFile> files{GameTableFile()};
    for (int slot = 1; slot <= gameSlots; ++slot) {
        files.push_back(HistoryFileOf(slot));
    }
    for (int slot = 1; slot <= gameSlots; ++slot) {
        files.push_back(PlayFileOf(slot));
    }
    files.push_back(ChosenPicksFile());
    return files;
}

std::optional<std::string> ReadFolderFile(const std::string& directory, const FolderFile& file) {
    const std::string path = platform::WithSeparator(directory) + file.name;
    try {
        const auto head = platform::ReadHeadIfThere(path, file.FormatLength());
        return head ? std::optional(head->bytes) : std::nullopt;
    } catch (const std::system_error& error) {
        throw Refusal(path + " cannot be read: " + WhyUnreadable(path, error) + ".");
    }
}

std::int64_t TailLength(const std::string& directory, const FolderFile& file) {
    std::error_code notThere;
    const auto length = std::filesystem::file_size(platform::WithSeparator(directory) + file.name, notThere);
    return notThere ? 0 : std::max<std::int64_t>(static_cast<std::int64_t>(length) - file.FormatLength(), 0);
}

std::string WhyUnreadable(const std::string& path, const std::system_error& error) {
    std::error_code unknown;
    if (std::filesystem::is_directory(path, unknown)) {
        return "it is a folder and no file";
    }
    return std::filesystem::is_other(path, unknown) ? "it is a device or a pipe and no file" : error.code().message();
}

}  // namespace ballhaven::data
