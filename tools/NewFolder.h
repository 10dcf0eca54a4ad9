#pragma once

#include <filesystem>
#include <string>

namespace ballhaven::tools {

/// A mended folder loses nothing that was entered, and no statistic of it ends the program; an ordinary one is what
/// every copy of the program reads.
enum class FolderKind { Ordinary, Mended };

/// Makes the table of games, with no game set up in it, in a folder that has no data yet. Gives the reason in one
/// sentence where that cannot be, and changes nothing then; the empty text when it is made. Sets `programDirectory` and
/// `systemRecord`. Raises a file failure where the file cannot be written.
[[nodiscard]] std::string BeginFolder(const std::filesystem::path& folder, FolderKind kind);

}  // namespace ballhaven::tools
