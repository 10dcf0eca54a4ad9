#pragma once

#include "data/Console.h"

#include <string>
#include <vector>

namespace ballhaven::data {

enum ExitCode : int { done = 0, refused = 1, wrongUsage = 2 };

/// Runs the command that the arguments (without the program's own name) tell, on the folder that they name, else on
/// `ownFolder`. Whatever keeps it from being done is told in `console.notes`.
[[nodiscard]] ExitCode RunCommandLine(std::vector<std::string> arguments, const std::string& ownFolder,
                                      const Console& console);

}  // namespace ballhaven::data
