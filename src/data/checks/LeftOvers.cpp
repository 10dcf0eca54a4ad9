#include "data/checks/LeftOvers.h"

#include "data/folder/FolderFiles.h"
#include "data/folder/WorkFolder.h"
#include "platform/files/DurableFile.h"
#include "platform/files/FolderChange.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace ballhaven::data {

namespace {

// The name of a copy, a digit for each 0 and a word of small letters for the star.
constexpr std::string_view copyName = "0000-00-00 00.00.00 *";
constexpr std::string_view copyEnding = ".zip";

std::string WithoutEnding(const std::string& name, std::string_view ending) {
    return name.ends_with(ending) ? name.substr(0, name.size() - ending.size()) : std::string();
}

bool IsLeftOver(const std::string& name, const std::vector<std::string>& names, bool changeIsDecided) {
    const std::string unsaved = WithoutEnding(name, platform::unsavedEnding);
    const std::string staged = WithoutEnding(name, platform::stagedEnding);
    const auto isOurs = [&names](const std::string& stem) { return std::ranges::find(names, stem) != names.end(); };
    return unsaved == platform::changeListName || isOurs(unsaved) || (!changeIsDecided && isOurs(staged));
}

bool IsWord(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

bool IsCopyName(const std::string& name) {
    const std::string stem = WithoutEnding(name, copyEnding);
    const std::size_t timeLength = copyName.size() - 1;
    return stem.size() > timeLength &&
           std::ranges::equal(std::string_view(stem).substr(0, timeLength), copyName.substr(0, timeLength),
                              [](char character, char pattern) {
                                  return pattern == '0' ? character >= '0' && character <= '9' : character == pattern;
                              }) &&
           IsWord(std::string_view(stem).substr(timeLength));
}

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

}  // namespace

std::vector<std::string> FindLeftOvers(const std::string& directory) {
    std::vector<std::string> ours;
    std::ranges::transform(AllFolderFiles(), std::back_inserter(ours), &FolderFile::name);
    const bool changeIsDecided = platform::HasDecidedChange(directory);
    std::vector<std::string> leftOvers;
    for (const std::string& name : NamesIn(directory)) {
        if (IsLeftOver(name, ours, changeIsDecided)) {
            leftOvers.push_back(name);
        }
    }
    const std::filesystem::path copies = std::filesystem::path(directory) / copiesFolder;
    if (std::filesystem::is_directory(copies)) {
        for (const std::string& name : NamesIn(copies)) {
            if (IsCopyName(WithoutEnding(name, platform::unsavedEnding))) {
                leftOvers.push_back(std::string(copiesFolder) + "/" + name);
            }
        }
    }
    return leftOvers;
}

}  // namespace ballhaven::data
