#pragma once

#include "platform/files/FileSystem.h"

#include <cerrno>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace ballhaven::platform {

/// Throws the std::system_error of an error's number.
[[noreturn]] void Fail(int errorNumber);

/// Repeats a call of the system's files as long as signals interrupt it; throws its error as std::system_error.
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

/// An open file or directory, closed at the end of its scope. Every member throws std::system_error.
class OpenFile {
  public:
    OpenFile(const std::string& path, FileAccess access);
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { Drop(); }

    [[nodiscard]] FileStatus Status() const;

    /// Fills `bytes` with what stands from `offset` on, and cuts it to what there is.
    void Read(std::int64_t offset, std::string& bytes) const;

    void Write(std::string_view bytes) const;

    /// Where bytes begin at `offset` or behind it; `end` where a hole reaches that far.
    [[nodiscard]] std::int64_t FindBytes(std::int64_t offset, std::int64_t end) const;

    /// Where the bytes at `offset` end: in a hole, or at `end`.
    [[nodiscard]] std::int64_t FindHole(std::int64_t offset, std::int64_t end) const;

    void SetLength(std::int64_t length) const;
    void SetPermissions(unsigned permissions) const;

    /// Returns when the file has reached the disk.
    void Flush() const;

    /// The same of a directory's entries. Some file systems have no flush of directories: these keep the order of
    /// changes by themselves or not at all.
    void FlushEntries() const;

    /// Closes the file and throws what the system kept back until now. An interrupted close has closed.
    void Close();

    /// Closes the file, if it is open, and asks for no answer.
    void Drop();

  private:
    int handle;
};

/// Copies what a file holds from `offset` up to its length, for a target that holds `written` bytes so far. A hole
/// stays a hole: it is neither read nor written, however large it is.
void CopyTail(const OpenFile& source, std::int64_t offset, std::int64_t length, const OpenFile& target,
              std::int64_t written);

}  // namespace ballhaven::platform
