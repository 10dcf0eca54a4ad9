#include "support/WatchedFiles.h"

#include "platform/files/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace ballhaven::support {

using platform::FileAccess;
using platform::FileStatus;
using platform::fileSystem;

namespace {

std::string NameOf(FileAccess access) {
    switch (access) {
        case FileAccess::Read:
            return "open Read";
        case FileAccess::Update:
            return "open Update";
        case FileAccess::ReadOrCreate:
            return "open ReadOrCreate";
        case FileAccess::UpdateOrCreate:
            return "open UpdateOrCreate";
        case FileAccess::CreateNew:
            return "open CreateNew";
        case FileAccess::Directory:
            return "open Directory";
    }
    return "open";
}

}  // namespace

template <typename Call>
auto WatchedFiles::Watch(const std::string& name, std::size_t bytes, const Call& call) {
    using Result = decltype(call());
    const std::size_t number = calls.size();
    calls.push_back({name, bytes});
    if (const int error = before(number); error != 0) {
        if (name == "close") {
            call();
        }
        return static_cast<Result>(-error);
    }
    const Result result = call();
    after(number);
    return result;
}

WatchedFiles::WatchedFiles() {
    const platform::FileSystem system = platform::SystemFiles();
    fileSystem.open = [this, system](const std::string& path, FileAccess access) {
        return Watch(NameOf(access), 0, [&] { return system.open(path, access); });
    };
    fileSystem.getStatus = [this, system](int file, FileStatus& status) {
        return Watch("getStatus", 0, [&] { return system.getStatus(file, status); });
    };
    fileSystem.read = [this, system](int file, std::int64_t offset, char* bytes, std::size_t size) {
        return Watch("read", size, [&] { return system.read(file, offset, bytes, std::min(size, mostBytesOfRead)); });
    };
    fileSystem.write = [this, system](int file, const char* bytes, std::size_t size) {
        return Watch("write", size, [&] {
            const std::size_t taken = std::min({size, mostBytesOfWrite, room});
            room -= taken;
            return taken == 0 ? std::int64_t{-ENOSPC} : system.write(file, bytes, taken);
        });
    };
    fileSystem.findBytes = [this, system](int file, std::int64_t offset) {
        return Watch("findBytes", 0, [&] { return system.findBytes(file, offset); });
    };
    fileSystem.findHole = [this, system](int file, std::int64_t offset) {
        return Watch("findHole", 0, [&] { return system.findHole(file, offset); });
    };
    fileSystem.setLength = [this, system](int file, std::int64_t length) {
        return Watch("setLength", 0, [&] { return system.setLength(file, length); });
    };
    fileSystem.setPermissions = [this, system](int file, unsigned permissions) {
        return Watch("setPermissions", 0, [&] { return system.setPermissions(file, permissions); });
    };
    fileSystem.flush = [this, system](int file) { return Watch("flush", 0, [&] { return system.flush(file); }); };
    fileSystem.close = [this, system](int file) { return Watch("close", 0, [&] { return system.close(file); }); };
    fileSystem.rename = [this, system](const std::string& from, const std::string& to) {
        return Watch("rename", 0, [&] { return system.rename(from, to); });
    };
    fileSystem.renameToFree = [this, system](const std::string& from, const std::string& to) {
        return Watch("renameToFree", 0, [&] { return system.renameToFree(from, to); });
    };
    fileSystem.remove = [this, system](const std::string& path) {
        return Watch("remove", 0, [&] { return system.remove(path); });
    };
    fileSystem.resolve = [this, system](const std::string& path, std::string& realPath) {
        return Watch("resolve", 0, [&] { return system.resolve(path, realPath); });
    };
}

WatchedFiles::~WatchedFiles() {
    fileSystem = platform::SystemFiles();
}

std::vector<std::string> WatchedFiles::Names() const {
    std::vector<std::string> names;
    for (const FileCall& call : calls) {
        names.push_back(call.name);
    }
    return names;
}

std::size_t WatchedFiles::Count(const std::string& name) const {
    return static_cast<std::size_t>(
        std::count_if(calls.begin(), calls.end(), [&](const FileCall& call) { return call.name == name; }));
}

}  // namespace ballhaven::support
