#pragma once

#include <functional>
#include <string>

namespace ballhaven::tools {

/// Does what a tool on a folder is for, and tells how it ended: `done` where the work gives no reason against it, else
/// the reason, or the failure that it raised. Gives the tool's exit code, 0 or 1.
int RunFolderTool(const std::function<std::string()>& work, const std::string& done);

}  // namespace ballhaven::tools
