#pragma once

#include "data/checks/Finding.h"
#include "data/folder/CopyArchive.h"

#include <string>
#include <vector>

namespace ballhaven::data {

/// What came of looking a folder through.
struct CheckedFolder {
    std::vector<Finding> findings;
    FileContents mended;                 ///< files with something to repair, as they are to be
    std::vector<std::string> leftOvers;  ///< files to remove: their paths below the folder
    int fileCount = 0;                   ///< files of the folder that are there
};

/// Looks through every file, record and field of a folder, and through what crashes have left in it. Changes nothing.
/// A file that cannot be read is a finding. Throws Refusal where none of the files is there, or the folder cannot be
/// read.
[[nodiscard]] CheckedFolder CheckFolder(const std::string& directory);

}  // namespace ballhaven::data
