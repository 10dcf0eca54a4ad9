#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

#include <string>

namespace ballhaven::data {

struct ExportOptions {
    std::string game;  ///< as `FindGame` takes it
    bool plays = false;
    std::string output = {};  ///< a file that is not there yet; empty for `console.out`
};

/// Writes the draws or the plays of a game of a folder as comma-separated values. Throws Refusal.
void ExportGame(const WorkFolder& folder, const ExportOptions& options, const Console& console);

}  // namespace ballhaven::data
