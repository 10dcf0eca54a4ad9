#include "state/RecordFile.h"

#include "platform/Guard.h"
#include "platform/files/DurableFile.h"
#include "platform/files/FileSystem.h"
#include "state/RuntimeFailure.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace ballhaven {

namespace {

/// Runs work on a file of the system and turns its error into the failure that names file and reason.
template <typename Work>
auto NamingFailures(const std::string& path, const Work& work) {
    try {
        return work();
    } catch (const std::system_error& error) {
        throw RuntimeFailure(platform::TextOfSystem(path), platform::TextOfSystem(error.code().message()));
    }
}

}  // namespace

RecordFile::RecordFile(std::string filePath, int lengthOfRecord, int countOfRecords)
    : path(std::move(filePath)), recordLength(lengthOfRecord), recordCount(countOfRecords) {
    auto head = NamingFailures(path, [this] { return platform::ReadHead(path, FormatLength()); });
    content = std::move(head.bytes);
    length = head.length;
}

std::string RecordFile::Read(int record) const {
    std::string text(static_cast<std::size_t>(recordLength), ' ');
    const std::size_t begin = OffsetOf(record);
    if (begin < content.size()) {
        content.copy(text.data(), text.size(), begin);
    }
    return text;
}

std::string_view RecordFile::View(int record, std::string& padded) const {
    const auto width = static_cast<std::size_t>(recordLength);
    if (const std::size_t begin = OffsetOf(record); begin + width <= content.size()) {
        return std::string_view(content).substr(begin, width);
    }
    return padded = Read(record);
}

void RecordFile::Write(int record, std::string_view text) {
    std::string bytes(text.substr(0, static_cast<std::size_t>(recordLength)));
    bytes.resize(static_cast<std::size_t>(recordLength), ' ');

    const std::size_t begin = OffsetOf(record);
    const std::size_t end = begin + bytes.size();
    if (end <= content.size() && content.compare(begin, bytes.size(), bytes) == 0) {
        return;
    }
    content.resize(std::max(content.size(), end), ' ');
    content.replace(begin, bytes.size(), bytes);
    length = std::max(length, static_cast<std::int64_t>(content.size()));
    changed = true;
}

void RecordFile::Close() {
    if (!changed) {
        return;
    }
    platform::SaveOrAskAgain(
        [this] { NamingFailures(path, [this] { platform::ReplaceHead(path, content, FormatLength()); }); });
    changed = false;
}

std::int64_t RecordFile::FormatLength() const {
    return std::int64_t{recordLength} * recordCount;
}

std::size_t RecordFile::OffsetOf(int record) const {
    if (record < 1 || record > recordCount) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(record - 1) * static_cast<std::size_t>(recordLength);
}

}  // namespace ballhaven
