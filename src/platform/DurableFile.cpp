#include "platform/DurableFile.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/FileSystem.h"

namespace ballhaven::platform {

namespace {

constexpr std::int64_t chunkSize = 64 * 1024;

[[noreturn]] void Fail(int errorNumber) {
    throw std::system_error(errorNumber, std::generic_category());
}

/// Repeats a call as long as signals interrupt it; throws its error.
template <typename Call>
auto Checked(const Call& call) {
    auto result = call();
    while (result == -EINTR) {
        result = call();
    }
    if (result < 0) {
        Fail(static_cast<int>(-result));
    }
    return result;
}

/// An open file, closed at the end of its scope.
class OpenFile {
  public:
    OpenFile(const std::string& path, FileAccess access)
        : handle(Checked([&] { return fileSystem.open(path, access); })) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { Drop(); }

    [[nodiscard]] FileStatus Status() const {
        FileStatus status;
        Checked([&] { return fileSystem.getStatus(handle, status); });
        return status;
    }

    /// The next bytes from `offset` on, at most `size`; none at the end of the file.
    [[nodiscard]] std::string Read(std::int64_t offset, std::int64_t size) const {
        std::string bytes(static_cast<std::size_t>(size), '\0');
        const auto count = Checked([&] { return fileSystem.read(handle, offset, bytes.data(), bytes.size()); });
        bytes.resize(static_cast<std::size_t>(count));
        return bytes;
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto count = Checked([&] { return fileSystem.write(handle, bytes.data(), bytes.size()); });
            if (count == 0) {
                Fail(ENOSPC);  // a system that takes nothing and names no reason has no room
            }
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void SetPermissions(unsigned permissions) const {
        Checked([&] { return fileSystem.setPermissions(handle, permissions); });
    }

    void Flush() const {
        Checked([&] { return fileSystem.flush(handle); });
    }

    /// Closes the file and throws what the system kept back until now. An interrupted close has closed.
    void Close() {
        const int result = fileSystem.close(handle);
        handle = -1;
        if (result < 0 && result != -EINTR) {
            Fail(-result);
        }
    }

    /// Closes the file, if it is open, and asks for no answer.
    void Drop() {
        if (handle >= 0) {
            fileSystem.close(handle);
            handle = -1;
        }
    }

  private:
    int handle;
};

/// A file beside its target that is gone at the end of its scope, unless it was renamed.
class TemporaryFile {
  public:
    explicit TemporaryFile(std::string filePath) : path(std::move(filePath)), file(path, FileAccess::CreateNew) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!renamed) {
            file.Drop();
            fileSystem.remove(path);
        }
    }

    [[nodiscard]] OpenFile& File() { return file; }

    void RenameTo(const std::string& target) {
        Checked([&] { return fileSystem.rename(path, target); });
        renamed = true;
    }

  private:
    std::string path;
    OpenFile file;
    bool renamed = false;
};

std::string RealPath(const std::string& path) {
    std::string realPath;
    Checked([&] { return fileSystem.resolve(path, realPath); });
    return realPath;
}

std::string TemporaryPath(const std::string& realPath) {
    return realPath + ".new";
}

// Some file systems have no flush of directories: these keep the order of changes by themselves or not at all.
void FlushDirectory(const OpenFile& directory) {
    try {
        directory.Flush();
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::invalid_argument && error.code() != std::errc::not_supported) {
            throw;
        }
    }
}

void CopyFrom(const OpenFile& source, std::int64_t offset, const OpenFile& target) {
    for (std::string bytes = source.Read(offset, chunkSize); !bytes.empty(); bytes = source.Read(offset, chunkSize)) {
        target.Write(bytes);
        offset += static_cast<std::int64_t>(bytes.size());
    }
}

}  // namespace

FileHead ReadHead(const std::string& path, std::int64_t limit) {
    const OpenFile file(path, FileAccess::ReadOrCreate);
    const FileStatus status = file.Status();
    if (!status.isRegular) {
        Fail(ENOTSUP);
    }
    // One that cannot be removed hinders no reader; the next save will say so.
    fileSystem.remove(TemporaryPath(RealPath(path)));

    FileHead head;
    auto rest = std::min(limit, status.length);
    while (rest > 0) {
        const std::string bytes = file.Read(static_cast<std::int64_t>(head.bytes.size()), rest);
        if (bytes.empty()) {
            break;
        }
        head.bytes += bytes;
        rest -= static_cast<std::int64_t>(bytes.size());
    }
    head.length = rest > 0 ? static_cast<std::int64_t>(head.bytes.size()) : status.length;
    return head;
}

void ReplaceHead(const std::string& path, std::string_view head, std::int64_t tailOffset) {
    const std::string realPath = RealPath(path);
    // The old file is asked for writing, though it is only read: one that is protected is not replaced behind the back
    // of whoever protected it. The directory is opened while everything can still fail without a trace.
    OpenFile old(realPath, FileAccess::UpdateOrCreate);
    const FileStatus status = old.Status();
    const OpenFile directory(std::filesystem::path(realPath).parent_path().string(), FileAccess::Directory);

    TemporaryFile temporary(TemporaryPath(realPath));
    temporary.File().SetPermissions(status.permissions);
    temporary.File().Write(head);
    if (status.length > tailOffset) {
        CopyFrom(old, tailOffset, temporary.File());
    }
    old.Drop();
    temporary.File().Flush();
    temporary.File().Close();
    temporary.RenameTo(realPath);
    FlushDirectory(directory);
}

}  // namespace ballhaven::platform
