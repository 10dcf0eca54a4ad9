#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ballhaven::platform {

/// The beginning of a file.
struct FileHead {
    std::string bytes;
    std::int64_t length = 0;  ///< of the whole file
};

/// Reads the first `limit` bytes of a file, or all if it is shorter; a missing file comes into being empty. Removes the
/// temporary file that a crash left beside it. Throws std::system_error, also where no regular file stands.
[[nodiscard]] FileHead ReadHead(const std::string& path, std::int64_t limit);

/// Makes the file `head`, followed by what it held from byte `tailOffset` on, with the permissions that it had; a
/// symbolic link goes on pointing to it, and a hole behind that byte stays one. Whatever the moment of a crash, of an
/// error or of a power failure, the file is the old one or the new one. Returns when it is on the disk. Throws
/// std::system_error; the file is the old one then, except where the flush of the directory, the last step, has failed.
void ReplaceHead(const std::string& path, std::string_view head, std::int64_t tailOffset);

}  // namespace ballhaven::platform
