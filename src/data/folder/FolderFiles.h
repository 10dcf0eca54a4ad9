#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace ballhaven::data {

/// A data file of a Ballhaven folder. All are text in records of a fixed length.
struct FolderFile {
    std::string name;
    int recordLength = 0;  ///< in bytes
    int recordCount = 0;   ///< of the format; what a file holds behind its last record is none of ours and stays

    [[nodiscard]] std::int64_t FormatLength() const { return std::int64_t{recordLength} * recordCount; }
};

[[nodiscard]] FolderFile GameTableFile();
[[nodiscard]] FolderFile HistoryFileOf(int slot);
[[nodiscard]] FolderFile PlayFileOf(int slot);
[[nodiscard]] FolderFile ChosenPicksFile();

/// All of them: the table of games first, then by kind and slot.
[[nodiscard]] std::vector<FolderFile> AllFolderFiles();

/// What a file holds, up to the last record of its format; none where the folder has no such file. Makes nothing.
/// Throws Refusal where it cannot be read.
[[nodiscard]] std::optional<std::string> ReadFolderFile(const std::string& directory, const FolderFile& file);

/// How many bytes a file has behind the last record of its format; 0 where it is not there.
[[nodiscard]] std::int64_t TailLength(const std::string& directory, const FolderFile& file);

/// Why a file cannot be read, as a user would say it: without a stop.
[[nodiscard]] std::string WhyUnreadable(const std::string& path, const std::system_error& error);

}  // namespace ballhaven::data
