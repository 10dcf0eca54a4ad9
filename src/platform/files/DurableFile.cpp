#include "platform/files/DurableFile.h"

#include "platform/files/FileSystem.h"
#include "platform/files/Paths.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ballhaven::platform {

namespace {

constexpr std::int64_t chunkSize = 64 * 1024;

/// Names that are tried for a new file.
constexpr int mostCopies = 9999;

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

    /// Fills `bytes` with what stands from `offset` on, and cuts it to what there is.
    void Read(std::int64_t offset, std::string& bytes) const {
        std::size_t filled = 0;
        while (filled < bytes.size()) {
            const auto count = Checked([&] {
                return fileSystem.read(handle, offset + static_cast<std::int64_t>(filled), bytes.data() + filled,
                                       bytes.size() - filled);
            });
            if (count == 0) {
                break;
            }
            filled += static_cast<std::size_t>(count);
        }
        bytes.resize(filled);
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

    /// Where bytes begin at `offset` or behind it; `end` where a hole reaches that far.
    [[nodiscard]] std::int64_t FindBytes(std::int64_t offset, std::int64_t end) const {
        try {
            return std::min(Checked([&] { return fileSystem.findBytes(handle, offset); }), end);
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::no_such_device_or_address) {
                throw;
            }
            return end;
        }
    }

    /// Where the bytes at `offset` end: in a hole, or at `end`.
    [[nodiscard]] std::int64_t FindHole(std::int64_t offset, std::int64_t end) const {
        return std::min(Checked([&] { return fileSystem.findHole(handle, offset); }), end);
    }

    void SetLength(std::int64_t length) const {
        Checked([&] { return fileSystem.setLength(handle, length); });
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

    /// False where something bears the name already.
    [[nodiscard]] bool RenameToFree(const std::string& target) {
        try {
            Checked([&] { return fileSystem.renameToFree(path, target); });
            renamed = true;
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::file_exists) {
                throw;
            }
        }
        return renamed;
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

/// Copies a range of a file behind what another one has; false where the range has not so many bytes any more.
bool CopyBytes(const OpenFile& source, std::int64_t begin, std::int64_t end, const OpenFile& target) {
    std::string bytes;
    for (; begin < end; begin += static_cast<std::int64_t>(bytes.size())) {
        bytes.resize(static_cast<std::size_t>(std::min(chunkSize, end - begin)));
        source.Read(begin, bytes);
        if (bytes.empty()) {
            return false;
        }
        target.Write(bytes);
    }
    return true;
}

/// Copies what a file holds from `offset` up to its length, for a target that holds `written` bytes so far. A hole
/// stays a hole: it is neither read nor written, however large it is.
void CopyTail(const OpenFile& source, std::int64_t offset, std::int64_t length, const OpenFile& target,
              std::int64_t written) {
    const std::int64_t shift = written - offset;
    while (offset < length) {
        const std::int64_t begin = source.FindBytes(offset, length);
        if (begin > offset) {
            target.SetLength(begin + shift);
        }
        offset = begin < length ? source.FindHole(begin, length) : length;
        if (!CopyBytes(source, begin, offset, target)) {
            return;
        }
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
    head.bytes.resize(static_cast<std::size_t>(std::min(limit, status.length)));
    file.Read(0, head.bytes);
    const auto bytesRead = static_cast<std::int64_t>(head.bytes.size());
    head.length = bytesRead < limit ? bytesRead : status.length;
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
    CopyTail(old, tailOffset, status.length, temporary.File(), static_cast<std::int64_t>(head.size()));
    old.Drop();
    temporary.File().Flush();
    temporary.File().Close();
    temporary.RenameTo(realPath);
    FlushDirectory(directory);
}

class NewFile::Temporary : public TemporaryFile {
  public:
    using TemporaryFile::TemporaryFile;
};

NewFile::NewFile(std::string folderPath, std::string nameStem, std::string nameEnding)
    : folder(WithSeparator(std::move(folderPath))), stem(std::move(nameStem)), ending(std::move(nameEnding)) {
    const std::string path = TemporaryPath(PathOf(1));
    fileSystem.remove(path);  // one that cannot be removed lets the next step fail
    temporary = std::make_unique<Temporary>(path);
}

NewFile::~NewFile() = default;

std::string NewFile::PathOf(int copy) const {
    return folder + stem + (copy == 1 ? std::string() : " (" + std::to_string(copy) + ")") + ending;
}

std::string NewFile::Save(std::string_view bytes) {
    const OpenFile directory(folder, FileAccess::Directory);
    temporary->File().Write(bytes);
    temporary->File().Flush();
    temporary->File().Close();
    int copy = 1;
    while (!temporary->RenameToFree(PathOf(copy))) {
        if (++copy > mostCopies) {
            Fail(EEXIST);
        }
    }
    FlushDirectory(directory);
    return PathOf(copy);
}

}  // namespace ballhaven::platform
