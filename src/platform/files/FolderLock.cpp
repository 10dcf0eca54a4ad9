#include "platform/files/FolderLock.h"

#ifdef _WIN32
#include <filesystem>
#include <system_error>
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ballhaven::platform {

#ifdef _WIN32

FolderLock::FolderLock(const std::string& directory) {
    std::error_code failure;
    const std::filesystem::path folder = std::filesystem::canonical(directory, failure);
    if (failure) {
        return;
    }
    key = std::to_string(std::filesystem::hash_value(folder));
    handle = CreateMutexA(nullptr, FALSE, ("ballhaven-" + key).c_str());
    takenByAnother = handle != nullptr && GetLastError() == ERROR_ALREADY_EXISTS;
}

FolderLock::~FolderLock() {
    if (handle != nullptr) {
        CloseHandle(handle);
    }
}

#else

FolderLock::FolderLock(const std::string& directory)
    : folder(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    struct stat status {};
    if (folder < 0 || fstat(folder, &status) != 0) {
        return;
    }
    key = std::to_string(status.st_dev) + "-" + std::to_string(status.st_ino);
    takenByAnother = flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

FolderLock::~FolderLock() {
    if (folder >= 0) {
        close(folder);
    }
}

#endif

}  // namespace ballhaven::platform
