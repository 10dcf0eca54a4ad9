#include "data/folder/NewOutput.h"

#include "data/folder/FolderFiles.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "platform/files/FolderChange.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ballhaven::data {

namespace {

constexpr std::size_t textInMemory = 1 << 20;

/// Runs a step of making the file at a path; what goes wrong in it is a Refusal.
template <typename Step>
void MakeAt(const std::string& path, const Step& step) {
    try {
        step();
    } catch (const std::system_error& error) {
        if (error.code().value() == EEXIST) {
            throw Refusal(path + " is there already, and is not overwritten. Name another file.");
        }
        throw Refusal(path + " could not be made: " + error.code().message() + ".");
    }
}

/// Whether a file of this name in the folder of the data is read, written or removed there, by the window's program or
/// by this one.
bool IsNameOfOurs(std::string_view name) {
    for (const std::string_view ending : {platform::unsavedEnding, platform::stagedEnding}) {
        if (name.ends_with(ending)) {
            name.remove_suffix(ending.size());
            break;
        }
    }
    const std::vector<FolderFile> files = AllFolderFiles();
    return name == platform::changeListName || name == copiesFolder ||
           std::ranges::find(files, name, &FolderFile::name) != files.end();
}

void RefuseNameOfOurs(const std::string& dataFolder, const std::filesystem::path& whole, const std::string& path) {
    std::error_code notThere;
    if (IsNameOfOurs(whole.filename().string()) &&
        std::filesystem::equivalent(whole.parent_path(), dataFolder, notThere)) {
        throw Refusal(path + " has a name that Ballhaven keeps for itself in its folder. Name another file.");
    }
}

}  // namespace

NewOutput::NewOutput(const std::string& dataFolder, std::string userPath) : path(std::move(userPath)) {
    MakeAt(path, [this, &dataFolder] {
        const std::filesystem::path whole = std::filesystem::absolute(path);
        if (std::filesystem::exists(std::filesystem::symlink_status(whole))) {
            throw std::system_error(EEXIST, std::generic_category());
        }
        RefuseNameOfOurs(dataFolder, whole, path);
        folder = whole.parent_path().string();
        name = whole.filename().string();
        // Tells now whether a file can be made. A work that is broken off before it has much to write leaves nothing.
        const platform::NewFile attempt(folder, name, "");
    });
}

platform::NewFile& NewOutput::File() {
    if (!file) {
        file = std::make_unique<platform::NewFile>(folder, name, "");
    }
    return *file;
}

void NewOutput::Add(std::string_view more) {
    text += more;
    if (text.size() >= textInMemory) {
        MakeAt(path, [this] { File().Add(std::exchange(text, {})); });
    }
}

void NewOutput::Save() {
    MakeAt(path, [this] { File().SaveUnderItsName(text); });
}

void SaveNewOutput(const std::string& dataFolder, const std::string& path, std::string_view bytes) {
    NewOutput output(dataFolder, path);
    output.Add(bytes);
    output.Save();
}

}  // namespace ballhaven::data
