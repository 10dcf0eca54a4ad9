#pragma once

#include "data/Console.h"
#include "data/exchange/FileForm.h"
#include "data/folder/WorkFolder.h"

#include <string>

namespace ballhaven::data {

struct ImportOptions {
    std::string game;  ///< as `FindGame` takes it
    std::string file;
    GivenForm form = {};
    bool replaces = false;  ///< dates that the game has already take the picks of the file
    bool applies = false;   ///< without it, what would happen is only shown
};

/// Brings the draws of a file into a game of a folder, all or nothing, and tells what that does. Throws Refusal, after
/// the first faults of the file have been told in `console.notes`. Returns the words about the change that was made;
/// none where there was none.
[[nodiscard]] std::string ImportFile(const WorkFolder& folder, const ImportOptions& options, const Console& console);

}  // namespace ballhaven::data
