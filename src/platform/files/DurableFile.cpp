#include "platform/files/DurableFile.h"

#include "platform/files/FileSystem.h"
#include "platform/files/Paths.h"
#include "platform/files/SystemFile.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ballhaven::platform {

namespace {

/// Names that are tried for a new file.
constexpr int mostCopies = 9999;

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
    return realPath + std::string(unsavedEnding);
}

FileStatus RegularStatus(const OpenFile& file) {
    const FileStatus status = file.Status();
    if (!status.isRegular) {
        Fail(ENOTSUP);
    }
    return status;
}

FileHead HeadOf(const OpenFile& file, const FileStatus& status, std::int64_t limit) {
    FileHead head;
    head.bytes.resize(static_cast<std::size_t>(std::min(limit, status.length)));
    file.Read(0, head.bytes);
    const auto bytesRead = static_cast<std::int64_t>(head.bytes.size());
    head.length = bytesRead < limit ? bytesRead : status.length;
    return head;
}

}  // namespace

FileHead ReadHead(const std::string& path, std::int64_t limit) {
    const OpenFile file(path, FileAccess::ReadOrCreate);
    const FileStatus status = RegularStatus(file);
    // One that cannot be removed hinders no reader; the next save will say so.
    fileSystem.remove(TemporaryPath(RealPath(path)));
    return HeadOf(file, status, limit);
}

std::optional<FileHead> ReadHeadIfThere(const std::string& path, std::int64_t limit) {
    try {
        const OpenFile file(path, FileAccess::Read);
        return HeadOf(file, RegularStatus(file), limit);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::no_such_file_or_directory) {
            throw;
        }
        return std::nullopt;
    }
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
    directory.FlushEntries();
}

class NewFile::Temporary : public TemporaryFile {
  public:
    using TemporaryFile::TemporaryFile;
};

NewFile::NewFile(std::string folderPath, std::string nameStem, std::string nameEnding)
    : folder(WithSeparator(std::move(folderPath))), stem(std::move(nameStem)), ending(std::move(nameEnding)) {
    // What bears the temporary name already may be a file of the user's, so that another name is tried.
    for (int copy = 1; !temporary; ++copy) {
        try {
            temporary = std::make_unique<Temporary>(TemporaryPath(PathOf(copy)));
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::file_exists || copy == mostCopies) {
                throw;
            }
        }
    }
}

NewFile::~NewFile() = default;

std::string NewFile::PathOf(int copy) const {
    return folder + stem + (copy == 1 ? std::string() : " (" + std::to_string(copy) + ")") + ending;
}

std::string NewFile::Save(std::string_view bytes) {
    const OpenFile directory(folder, FileAccess::Directory);
    Finish(bytes);
    int copy = 1;
    while (!temporary->RenameToFree(PathOf(copy))) {
        if (++copy > mostCopies) {
            Fail(EEXIST);
        }
    }
    directory.FlushEntries();
    return PathOf(copy);
}

void NewFile::SaveUnderItsName(std::string_view bytes) {
    const OpenFile directory(folder, FileAccess::Directory);
    Finish(bytes);
    if (!temporary->RenameToFree(PathOf(1))) {
        Fail(EEXIST);
    }
    directory.FlushEntries();
}

void NewFile::Add(std::string_view bytes) {
    temporary->File().Write(bytes);
}

void NewFile::Finish(std::string_view bytes) {
    Add(bytes);
    temporary->File().Flush();
    temporary->File().Close();
}

}  // namespace ballhaven::platform
