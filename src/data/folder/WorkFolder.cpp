#include "data/folder/WorkFolder.h"

#include "data/folder/CountText.h"
#include "data/folder/FolderFiles.h"
#include "data/folder/Refusal.h"
#include "platform/Services.h"
#include "platform/files/DurableFile.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FolderChange.h"
#include "platform/files/Paths.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace ballhaven::data {

namespace {

const FolderFile& FileNamed(const std::vector<FolderFile>& known, const std::string& name) {
    return *std::ranges::find(known, name, &FolderFile::name);
}

/// Such as "2026-11-22 09.30.05", which is a part of a file's name on every system.
std::string TimeText(std::chrono::local_seconds time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    std::string text(sizeof "2026-11-22 09.30.05", '\0');
    const int length = std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02u %02d.%02d.%02d", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
        static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string ReasonOf(const std::system_error& error) {
    return error.code().message();
}

/// Why nothing was changed, where `file` could not be written or is empty for the change as a whole.
std::string WhyUnchanged(const std::string& directory, const std::string& file, const std::system_error& error) {
    if (error.code() != std::errc::file_exists) {
        return directory + file + " could not be written: " + ReasonOf(error) + ".";
    }
    const std::string inTheWay = file.empty() ? platform::changeListName : file + std::string(platform::stagedEnding);
    return "what bears the name " + directory + inTheWay +
           " is none of Ballhaven's, and in its way. Move it to another place, and try again.";
}

}  // namespace

WorkFolder::WorkFolder(const std::string& folder, DecidedChange decided) : directory(platform::WithSeparator(folder)) {
    try {
        lock = std::make_unique<platform::FolderLock>(directory);
        if (!lock->Take()) {
            throw Refusal(directory +
                          " is in use by Ballhaven or by another run of this program. Close it, and try again.");
        }
        if (decided == DecidedChange::Finish) {
            finishedChange = platform::HasDecidedChange(directory);
            platform::FinishFolderChange(directory);
        }
    } catch (const std::system_error& error) {
        throw Refusal(directory + " cannot be used: " + ReasonOf(error) + ".");
    }
}

std::string WorkFolder::Change(const FileContents& files, const std::string& occasion) const {
    KeepTails(files);
    std::string copy = KeepCopy(files, occasion);
    const std::vector<FolderFile> known = AllFolderFiles();
    platform::FolderChange change(directory);
    std::string fileInHand;
    try {
        for (const auto& [name, content] : files) {
            fileInHand = name;
            if (content) {
                change.Put(name, *content, FileNamed(known, name).FormatLength());
            } else {
                change.Remove(name);
            }
        }
        fileInHand.clear();
        change.Commit();
    } catch (const std::system_error& error) {
        if (!change.IsDecided()) {
            platform::fileSystem.remove(copy);  // one that stays does no harm
        }
        throw Refusal(change.IsDecided()
                          ? "The change could not be brought to its end: " + ReasonOf(error) +
                                ". It will be when this program or Ballhaven is next started on " + directory + "."
                          : "Nothing was changed: " + WhyUnchanged(directory, fileInHand, error));
    }
    return copy;
}

void WorkFolder::KeepTails(const FileContents& files) const {
    const std::vector<FolderFile> known = AllFolderFiles();
    for (const auto& [name, content] : files) {
        const FolderFile& file = FileNamed(known, name);
        const std::int64_t tail = TailLength(directory, file);
        if (tail > 0 && (!content || static_cast<std::int64_t>(content->size()) < file.FormatLength())) {
            throw Refusal("Nothing was changed: " + directory + name + " goes on for " + CountText(tail, "byte") +
                          " behind its last record, which would be lost, and which no copy keeps. Move the file to "
                          "another place, and try again.");
        }
    }
}

std::string WorkFolder::KeepCopy(const FileContents& files, const std::string& occasion) const {
    const std::vector<FolderFile> known = AllFolderFiles();
    FileContents old;
    for (const auto& [name, content] : files) {
        old[name] = ReadFolderFile(directory, FileNamed(known, name));
    }
    const std::string folder = directory + copiesFolder;
    try {
        std::filesystem::create_directory(folder);
        return platform::NewFile(folder, TimeText(platform::services.now()) + " " + occasion, ".zip")
            .Save(ArchiveOf(old));
    } catch (const std::system_error& error) {
        std::error_code unknown;
        const bool isInTheWay = std::filesystem::exists(std::filesystem::symlink_status(folder, unknown)) &&
                                !std::filesystem::is_directory(folder, unknown);
        throw Refusal("Nothing was changed, since no copy could be kept in " + folder + ": " +
                      (isInTheWay ? "it is no folder; move it to another place" : ReasonOf(error)) + ".");
    }
}

}  // namespace ballhaven::data
