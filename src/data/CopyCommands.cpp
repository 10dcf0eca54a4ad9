#include "data/CopyCommands.h"

#include "data/folder/CountText.h"
#include "data/folder/FolderFiles.h"
#include "data/folder/NewOutput.h"
#include "data/folder/Refusal.h"
#include "data/folder/TableOnFile.h"
#include "platform/files/DurableFile.h"

#include <algorithm>
#include <system_error>

namespace ballhaven::data {

namespace {

/// No copy of a folder comes near it: all its files at their full length have 8 million bytes.
constexpr std::int64_t longestZip = 64 * 1024 * 1024;

std::string ReadZip(const std::string& path) {
    std::optional<platform::FileHead> head;
    try {
        head = platform::ReadHeadIfThere(path, longestZip);
    } catch (const std::system_error& error) {
        throw Refusal(path + " cannot be read: " + WhyUnreadable(path, error) + ".");
    }
    if (!head) {
        throw Refusal("There is no file " + path + ".");
    }
    if (head->length > longestZip) {
        throw Refusal(path + " is no copy of a Ballhaven folder: it is far longer than any.");
    }
    return std::move(head->bytes);
}

bool IsThere(const FileContents::value_type& file) {
    return file.second.has_value();
}

/// Those of a copy's files that are not just so in the folder.
FileContents DifferentFiles(const std::string& directory, FileContents files) {
    for (const FolderFile& file : AllFolderFiles()) {
        const auto found = files.find(file.name);
        if (found != files.end() && found->second == ReadFolderFile(directory, file)) {
            files.erase(found);
        }
    }
    return files;
}

/// What a change of files makes of the folder's mark, in a line; nothing where that stays.
std::string MarkChange(const std::string& directory, const FileContents& files) {
    const auto table = files.find(GameTableFile().name);
    if (table == files.end()) {
        return "";
    }
    const bool isMended = IsTableOfMendedFolder(table->second);
    if (isMended == IsTableOfMendedFolder(ReadFolderFile(directory, GameTableFile()))) {
        return "";
    }
    return isMended
               ? "The folder is a mended one now, as it was then.\n"
               : "The folder is an ordinary one now, as it was then; \"ballhaven-data mend\" marks it as mended.\n";
}

}  // namespace

std::string BackUp(const WorkFolder& folder, const std::string& zip, const Console& console) {
    FileContents files;
    for (const FolderFile& file : AllFolderFiles()) {
        files[file.name] = ReadFolderFile(folder.Path(), file);
    }
    const auto count = std::ranges::count_if(files, IsThere);
    if (count == 0) {
        throw Refusal(folder.Path() + " holds no data of Ballhaven. Name the right folder with --folder.");
    }
    SaveNewOutput(folder.Path(), zip, ArchiveOf(files));
    std::string made = CountText(count, "file") + (count == 1 ? " is in " : " are in ") + zip + ".";
    console.out << made << '\n';
    for (const FolderFile& file : AllFolderFiles()) {
        if (const std::int64_t tail = TailLength(folder.Path(), file); tail > 0) {
            console.out << file.name << " goes on for " << CountText(tail, "byte")
                        << " behind its last record, which no Ballhaven reads. They are not in the copy.\n";
        }
    }
    return made;
}

std::string Restore(const WorkFolder& folder, const std::string& zip, const Console& console) {
    const FileContents files = DifferentFiles(folder.Path(), FilesOf(ReadZip(zip), zip));
    if (files.empty()) {
        console.out << "The folder holds just what " << zip << " holds. Nothing was changed.\n";
        return {};
    }
    const std::string markChange = MarkChange(folder.Path(), files);
    const std::string copy = folder.Change(files, "restore");
    for (const auto& [name, content] : files) {
        console.out << name << (content ? " is as it was.\n" : " was not there, and is gone.\n");
    }
    std::string isKept = "What was there is kept in " + copy + ".";
    console.out << markChange << isKept << '\n';
    return isKept;
}

}  // namespace ballhaven::data
