#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace ballhaven::platform {

/// What a file is opened for.
enum class FileAccess {
    Read,            ///< reading a file that is there
    Update,          ///< reading a file that is there, where writing must be allowed too
    ReadOrCreate,    ///< reading; a missing file comes into being empty
    UpdateOrCreate,  ///< reading, where writing must be allowed too; a missing file comes into being empty
    CreateNew,       ///< writing a file of which nothing may be there yet, for the user alone to read
    Directory,       ///< flushing a directory's entries, and locking it
};

struct FileStatus {
    bool isRegular = false;  ///< no directory, pipe or device
    std::int64_t length = 0;
    unsigned permissions = 0;  ///< read, write and execute of the owner, the group and others, nine bits
};

/// What the program asks of the system's files, one member a system call. Each answers with 0 or more, or with the
/// negative of the error's number as in <cerrno>; none repeats a call that was interrupted or goes on after a short
/// one. A test replaces members to see the calls or to let them fail.
struct FileSystem {
    /// A handle of the opened file.
    std::function<int(const std::string& path, FileAccess access)> open;
    std::function<int(int file, FileStatus& status)> getStatus;
    /// The bytes read from `offset` on, 0 at the end of the file.
    std::function<std::int64_t(int file, std::int64_t offset, char* bytes, std::size_t size)> read;
    /// Where bytes begin at `offset` or behind it, and where they end in a hole or with the file; the first answers
    /// with ENXIO where there are none any more. A system that knows of no holes takes the whole file for bytes.
    std::function<std::int64_t(int file, std::int64_t offset)> findBytes;
    std::function<std::int64_t(int file, std::int64_t offset)> findHole;
    /// The bytes written at the end of a file that was opened as new.
    std::function<std::int64_t(int file, const char* bytes, std::size_t size)> write;
    /// Makes the file longer by a hole, which reads as zeros and takes no room.
    std::function<int(int file, std::int64_t length)> setLength;
    std::function<int(int file, unsigned permissions)> setPermissions;
    /// Returns when the file's bytes, or the directory's entries, have reached the disk.
    std::function<int(int file)> flush;
    /// The handle is gone, also after an error.
    std::function<int(int file)> close;
    /// Replaces what stands under the new name, in one step.
    std::function<int(const std::string& from, const std::string& to)> rename;
    /// Gives a file a new name in one step; EEXIST where something stands under that already.
    std::function<int(const std::string& from, const std::string& to)> renameToFree;
    std::function<int(const std::string& path)> remove;
    /// Locks a directory against every other one that locks it, until it is closed; EWOULDBLOCK where one does already.
    std::function<int(int directory)> lock;
    /// The absolute path of an existing file behind all symbolic links.
    std::function<int(const std::string& path, std::string& realPath)> resolve;
};

/// The calls of this system.
[[nodiscard]] FileSystem SystemFiles();

/// A path, or the words of an error, as text of the program: Windows-1252, with "?" for a character that has no byte
/// there. Bytes that are no text in the system's encoding stay as they are.
[[nodiscard]] std::string TextOfSystem(const std::string& bytes);

/// The calls in use: `SystemFiles` but in tests.
extern FileSystem fileSystem;

}  // namespace ballhaven::platform
