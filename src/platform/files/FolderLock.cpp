#include "platform/files/FolderLock.h"

#include "platform/files/FileSystem.h"

#include <cerrno>
#include <sys/stat.h>
#include <system_error>

namespace ballhaven::platform {

namespace {

int OpenFolder(const std::string& directory) {
    const int folder = fileSystem.open(directory, FileAccess::Directory);
    if (folder < 0) {
        throw std::system_error(-folder, std::generic_category());
    }
    return folder;
}

std::string KeyOf(int folder) {
    struct stat status {};
    if (fstat(folder, &status) != 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return std::to_string(status.st_dev) + "-" + std::to_string(status.st_ino);
}

}  // namespace

FolderLock::FolderLock(const std::string& directory) : folder(OpenFolder(directory)), key(KeyOf(folder)) {}

FolderLock::~FolderLock() {
    fileSystem.close(folder);
}

bool FolderLock::Take() {
    const int result = fileSystem.lock(folder);
    if (result < 0 && result != -EWOULDBLOCK) {
        throw std::system_error(-result, std::generic_category());
    }
    return result == 0;
}

}  // namespace ballhaven::platform
