#include "platform/files/FolderChange.h"

#include "platform/files/DurableFile.h"
#include "platform/files/Paths.h"
#include "platform/files/SystemFile.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace ballhaven::platform {

namespace {

constexpr std::string_view putWord = "put ";
constexpr std::string_view removeWord = "remove ";
constexpr std::int64_t longestList = 64 * 1024;

constexpr unsigned readAndWrite = 0666;

/// The file that a name stands for: behind a link the one that it points to.
std::string TargetOf(const std::string& directory, const std::string& name) {
    const std::string path = directory + name;
    std::string target;
    return fileSystem.resolve(path, target) < 0 ? path : target;
}

std::string StagedPath(const std::string& target) {
    return target + std::string(stagedEnding);
}

bool IsNameInAFolder(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && name.find(directorySeparator) == std::string::npos;
}

/// Lets a call pass that does not find the file: somebody has done the step before.
void CheckedIfThere(int result) {
    if (result < 0 && result != -ENOENT) {
        Fail(-result);
    }
}

void FlushFolder(const std::string& directory) {
    OpenFile(directory, FileAccess::Directory).FlushEntries();
}

/// Ends a change: the files that it has put into place reach the disk before its list goes.
void RemoveList(const std::string& directory) {
    FlushFolder(directory);
    CheckedIfThere(fileSystem.remove(directory + changeListName));
    FlushFolder(directory);
}

/// What the list holds; none where nothing bears its name, or what is no file, and so none of ours.
std::optional<FileHead> ReadList(const std::string& directory) {
    try {
        return ReadHeadIfThere(directory + changeListName, longestList);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::not_supported) {
            throw;
        }
        return std::nullopt;
    }
}

void WriteStaged(OpenFile& staged, unsigned permissions, std::string_view head) {
    staged.SetPermissions(permissions);
    staged.Write(head);
}

void FinishStaged(OpenFile& staged) {
    staged.Flush();
    staged.Close();
}

void StageOver(const OpenFile& old, OpenFile& staged, std::string_view head, std::int64_t tailOffset) {
    const FileStatus status = old.Status();
    if (!status.isRegular) {
        Fail(ENOTSUP);
    }
    WriteStaged(staged, status.permissions, head);
    CopyTail(old, tailOffset, status.length, staged, static_cast<std::int64_t>(head.size()));
    FinishStaged(staged);
}

}  // namespace

FolderChange::FolderChange(std::string folder) : directory(WithSeparator(std::move(folder))) {}

FolderChange::~FolderChange() {
    if (!decided) {
        for (const Step& step : steps) {
            if (step.puts) {
                fileSystem.remove(StagedPath(TargetOf(directory, step.name)));
            }
        }
    }
}

void FolderChange::Put(const std::string& name, std::string_view head, std::int64_t tailOffset) {
    const std::string target = TargetOf(directory, name);
    fileSystem.remove(StagedPath(target));  // what a crash left; one that cannot be removed lets the next step fail
    OpenFile staged(StagedPath(target), FileAccess::CreateNew);
    steps.push_back({name, true});
    try {
        StageOver(OpenFile(target, FileAccess::Update), staged, head, tailOffset);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::no_such_file_or_directory) {
            throw;
        }
        const unsigned ofTheFolder = OpenFile(directory, FileAccess::Directory).Status().permissions;
        WriteStaged(staged, ofTheFolder & readAndWrite, head);
        FinishStaged(staged);
    }
}

void FolderChange::Remove(const std::string& name) {
    steps.push_back({name, false});
}

void FolderChange::Commit() {
    if (steps.size() == 1) {
        Take(directory, steps.front());
        decided = true;
        FlushFolder(directory);
    } else if (steps.size() > 1) {
        Decide();
        TakeAll();
    }
}

void FolderChange::Take(const std::string& directory, const Step& step) {
    const std::string target = TargetOf(directory, step.name);
    CheckedIfThere(step.puts ? fileSystem.rename(StagedPath(target), target) : fileSystem.remove(target));
}

void FolderChange::Decide() const {
    std::string list;
    for (const Step& step : steps) {
        list.append(step.puts ? putWord : removeWord).append(step.name).append("\n");
    }
    fileSystem.remove(directory + changeListName + std::string(unsavedEnding));  // what a crash left
    NewFile file(directory, changeListName, "");
    try {
        file.SaveUnderItsName(list);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::file_exists) {
            fileSystem.remove(directory + changeListName);  // it may bear its name already, and not be on the disk
        }
        throw;
    }
}

void FolderChange::TakeAll() {
    std::size_t taken = 0;
    try {
        for (const Step& step : steps) {
            Take(directory, step);
            ++taken;
        }
    } catch (const std::system_error&) {
        decided = taken > 0 || fileSystem.remove(directory + changeListName) < 0;
        throw;
    }
    decided = true;
    RemoveList(directory);
}

std::vector<FolderChange::Step> FolderChange::DecidedSteps(const std::string& directory) {
    const std::optional<FileHead> list = ReadList(directory);
    std::vector<Step> steps;
    std::istringstream lines(list ? list->bytes : std::string());
    for (std::string line; std::getline(lines, line);) {
        const bool puts = line.starts_with(putWord);
        if (!puts && !line.starts_with(removeWord)) {
            return {};
        }
        steps.push_back({line.substr((puts ? putWord : removeWord).size()), puts});
        if (!IsNameInAFolder(steps.back().name)) {
            return {};
        }
    }
    return steps;
}

bool HasDecidedChange(const std::string& folder) {
    return !FolderChange::DecidedSteps(WithSeparator(folder)).empty();
}

void FinishFolderChange(const std::string& folder) {
    const std::string directory = WithSeparator(folder);
    const std::vector<FolderChange::Step> steps = FolderChange::DecidedSteps(directory);
    if (steps.empty()) {
        return;
    }
    for (const FolderChange::Step& step : steps) {
        FolderChange::Take(directory, step);
    }
    RemoveList(directory);
}

}  // namespace ballhaven::platform
