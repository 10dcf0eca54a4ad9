#include "data/folder/FolderFiles.h"

#include "data/folder/Refusal.h"
#include "history/DrawRecord.h"
#include "platform/files/DurableFile.h"
#include "platform/files/Paths.h"
#include "plays/PlayRecord.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "wheels/ChosenRecord.h"

#include <algorithm>
#include <filesystem>

namespace ballhaven::data {

FolderFile GameTableFile() {
    return {gameTableName, gameRecordLength, gameTableRecords};
}

FolderFile HistoryFileOf(int slot) {
    return {HistoryFileName(slot), drawRecordLength, drawFileRecords};
}

FolderFile PlayFileOf(int slot) {
    return {PlayFileName(slot), playRecordLength, playCount};
}

FolderFile ChosenPicksFile() {
    return {chosenFileName, chosenRecordLength, chosenFileRecords};
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
