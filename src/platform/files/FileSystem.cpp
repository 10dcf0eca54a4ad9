#include "platform/files/FileSystem.h"

#include "platform/files/CodePage.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ballhaven::platform {

namespace {

constexpr mode_t newFilePermissions = 0666;  // less the user's mask
constexpr mode_t ownerOnly = 0600;
constexpr mode_t allPermissions = 0777;

template <typename Result>
Result Answer(Result result) {
    return result < 0 ? static_cast<Result>(-errno) : result;
}

// Without O_NONBLOCK a pipe in a data file's place would hang the program before its kind can be looked at.
int FlagsOf(FileAccess access) {
    constexpr int always = O_CLOEXEC | O_NONBLOCK;
    switch (access) {
        case FileAccess::Read:
            return always | O_RDONLY;
        case FileAccess::Update:
            return always | O_RDWR;
        case FileAccess::ReadOrCreate:
            return always | O_RDONLY | O_CREAT;
        case FileAccess::UpdateOrCreate:
            return always | O_RDWR | O_CREAT;
        case FileAccess::CreateNew:
            return always | O_WRONLY | O_CREAT | O_EXCL | O_APPEND;
        case FileAccess::Directory:
            return always | O_RDONLY | O_DIRECTORY;
    }
    return always;
}

int Open(const std::string& path, FileAccess access) {
    const mode_t permissions = access == FileAccess::CreateNew ? ownerOnly : newFilePermissions;
    return Answer(::open(path.c_str(), FlagsOf(access), permissions));
}

int GetStatus(int file, FileStatus& status) {
    struct stat found {};
    const int result = Answer(::fstat(file, &found));
    if (result == 0) {
        status = {S_ISREG(found.st_mode), found.st_size, found.st_mode & allPermissions};
    }
    return result;
}

std::int64_t Read(int file, std::int64_t offset, char* bytes, std::size_t size) {
    return Answer(::pread(file, bytes, size, offset));
}

std::int64_t Write(int file, const char* bytes, std::size_t size) {
    return Answer(::write(file, bytes, size));
}

std::int64_t FindBytes(int file, std::int64_t offset) {
    return Answer(::lseek(file, offset, SEEK_DATA));
}

std::int64_t FindHole(int file, std::int64_t offset) {
    return Answer(::lseek(file, offset, SEEK_HOLE));
}

int SetLength(int file, std::int64_t length) {
    return Answer(::ftruncate(file, length));
}

int SetPermissions(int file, unsigned permissions) {
    return Answer(::fchmod(file, permissions & allPermissions));
}

int Flush(int file) {
    return Answer(::fsync(file));
}

int Close(int file) {
    return Answer(::close(file));
}

int Rename(const std::string& from, const std::string& to) {
    return Answer(::rename(from.c_str(), to.c_str()));
}

// A file system that does not know the step takes the new name as a second one, if nothing bears it, and drops the
// first.
int RenameToFree(const std::string& from, const std::string& to) {
    const int result = Answer(::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE));
    if (result != -EINVAL && result != -ENOSYS) {
        return result;
    }
    const int linked = Answer(::link(from.c_str(), to.c_str()));
    return linked < 0 ? linked : Answer(::unlink(from.c_str()));
}

int Remove(const std::string& path) {
    return Answer(::unlink(path.c_str()));
}

int Lock(int directory) {
    return Answer(::flock(directory, LOCK_EX | LOCK_NB));
}

int Resolve(const std::string& path, std::string& realPath) {
    const std::unique_ptr<char, decltype(&std::free)> found(::realpath(path.c_str(), nullptr), &std::free);
    if (!found) {
        return -errno;
    }
    realPath = found.get();
    return 0;
}

}  // namespace

FileSystem SystemFiles() {
    return {.open = Open,
            .getStatus = GetStatus,
            .read = Read,
            .findBytes = FindBytes,
            .findHole = FindHole,
            .write = Write,
            .setLength = SetLength,
            .setPermissions = SetPermissions,
            .flush = Flush,
            .close = Close,
            .rename = Rename,
            .renameToFree = RenameToFree,
            .remove = Remove,
            .lock = Lock,
            .resolve = Resolve};
}

std::string TextOfSystem(const std::string& bytes) {
    try {
        return FromUtf16(std::filesystem::path(bytes).u16string());
    } catch (const std::system_error&) {
        return bytes;
    }
}

FileSystem fileSystem = SystemFiles();

}  // namespace ballhaven::platform
