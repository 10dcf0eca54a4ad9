#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unistd.h>

namespace ballhaven::bench {

/// Reads a whole file with the bare calls of the system. Throws std::system_error.
[[nodiscard]] std::string ReadPlainly(const std::string& path);

/// Writes a file of a directory, given with a separator at its end, as plainly as it can be done without the danger of
/// losing the old one: a new file beside it, its flush, the renaming, and the flush of the directory. Throws
/// std::system_error.
void SavePlainly(const std::string& directory, const std::string& name, std::string_view bytes,
                 const std::function<int(int file)>& flush = ::fsync);

}  // namespace ballhaven::bench
