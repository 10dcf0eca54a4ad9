#include "platform/files/SystemFile.h"

#include <algorithm>

namespace ballhaven::platform {

namespace {

constexpr std::int64_t chunkSize = 64 * 1024;

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

}  // namespace

void Fail(int errorNumber) {
    throw std::system_error(errorNumber, std::generic_category());
}

OpenFile::OpenFile(const std::string& path, FileAccess access)
    : handle(Checked([&] { return fileSystem.open(path, access); })) {}

FileStatus OpenFile::Status() const {
    FileStatus status;
    Checked([&] { return fileSystem.getStatus(handle, status); });
    return status;
}

void OpenFile::Read(std::int64_t offset, std::string& bytes) const {
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

void OpenFile::Write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const auto count = Checked([&] { return fileSystem.write(handle, bytes.data(), bytes.size()); });
        if (count == 0) {
            Fail(ENOSPC);  // a system that takes nothing and names no reason has no room
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::int64_t OpenFile::FindBytes(std::int64_t offset, std::int64_t end) const {
    try {
        return std::min(Checked([&] { return fileSystem.findBytes(handle, offset); }), end);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::no_such_device_or_address) {
            throw;
        }
        return end;
    }
}

std::int64_t OpenFile::FindHole(std::int64_t offset, std::int64_t end) const {
    return std::min(Checked([&] { return fileSystem.findHole(handle, offset); }), end);
}

void OpenFile::SetLength(std::int64_t length) const {
    Checked([&] { return fileSystem.setLength(handle, length); });
}

void OpenFile::SetPermissions(unsigned permissions) const {
    Checked([&] { return fileSystem.setPermissions(handle, permissions); });
}

void OpenFile::Flush() const {
    Checked([&] { return fileSystem.flush(handle); });
}

void OpenFile::FlushEntries() const {
    try {
        Flush();
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::invalid_argument && error.code() != std::errc::not_supported) {
            throw;
        }
    }
}

void OpenFile::Close() {
    const int result = fileSystem.close(handle);
    handle = -1;
    if (result < 0 && result != -EINTR) {
        Fail(-result);
    }
}

void OpenFile::Drop() {
    if (handle >= 0) {
        fileSystem.close(handle);
        handle = -1;
    }
}

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

}  // namespace ballhaven::platform
