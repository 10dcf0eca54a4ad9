#include "data/folder/CopyArchive.h"

#include "data/folder/FolderFiles.h"
#include "data/folder/Refusal.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <memory>
#include <new>
#include <sstream>
#include <zlib.h>

namespace ballhaven::data {

namespace {

constexpr const char* contentsName = "CONTENTS";
constexpr std::string_view contentsTitle = "Ballhaven copy 1";
constexpr std::string_view absentWord = "absent";
constexpr std::size_t longestContents = 64 * 1024;

constexpr unsigned ownerMayWrite = 0644;

using Writer = std::unique_ptr<archive, decltype(&archive_write_free)>;
using Reader = std::unique_ptr<archive, decltype(&archive_read_free)>;
using Entry = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;

unsigned long ChecksumOf(std::string_view bytes) {
    return crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size());
}

/// What "CONTENTS" tells of files.
std::string Listed(const FileContents& files) {
    std::ostringstream list;
    list << contentsTitle << '\n';
    for (const auto& [name, content] : files) {
        list << name << ' ';
        if (content) {
            list << content->size() << ' ' << std::hex << ChecksumOf(*content) << std::dec << '\n';
        } else {
            list << absentWord << '\n';
        }
    }
    return list.str();
}

/// Fails as memory that has run out does: there is no other way in which a zip in memory is not written.
void Check(int result) {
    if (result < ARCHIVE_OK) {
        throw std::bad_alloc();
    }
}

void Add(archive& zip, const std::string& name, std::string_view bytes) {
    const Entry entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), ownerMayWrite);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(bytes.size()));
    Check(archive_write_header(&zip, entry.get()));
    if (archive_write_data(&zip, bytes.data(), bytes.size()) != static_cast<la_ssize_t>(bytes.size())) {
        throw std::bad_alloc();
    }
}

la_ssize_t AppendTo(archive* /*zip*/, void* target, const void* bytes, std::size_t size) {
    static_cast<std::string*>(target)->append(static_cast<const char*>(bytes), size);
    return static_cast<la_ssize_t>(size);
}

/// A name out of a zip that may hold anything, for a message of one line.
std::string Shown(std::string name) {
    constexpr std::size_t longest = 60;
    if (name.size() > longest) {
        name = name.substr(0, longest) + "...";
    }
    std::ranges::replace_if(
        name, [](unsigned char byte) { return byte < ' ' || byte == '\x7F'; }, '?');
    return "\"" + name + "\"";
}

/// Reads a zip and refuses what is not one of ours, in words that name it.
class ArchiveReader {
  public:
    ArchiveReader(std::string_view archiveBytes, const std::string& archiveName)
        : name(archiveName), zip(archive_read_new(), archive_read_free) {
        // By its directory, which stands at its end: a zip that was cut has none.
        Check(archive_read_support_format_zip_seekable(zip.get()));
        if (archive_read_open_memory(zip.get(), archiveBytes.data(), archiveBytes.size()) != ARCHIVE_OK) {
            RefuseDamaged();
        }
    }

    FileContents Read() {
        std::optional<std::string> list;
        FileContents files;
        archive_entry* entry = nullptr;
        while (Next(entry)) {
            const std::string file = NameOf(*entry);
            std::string& content = file == contentsName ? NewList(list) : NewFile(files, file);
            content = Bytes(file == contentsName ? longestContents : LimitOf(file));
        }
        if (!list) {
            Refuse("it has no list of contents");
        }
        AddAbsentOnes(*list, files);
        if (*list != Listed(files)) {
            Refuse("its list of contents does not agree with what is in it: files are missing or changed");
        }
        if (files.empty()) {
            Refuse("it tells of no file");
        }
        return files;
    }

  private:
    [[noreturn]] void Refuse(const std::string& reason) const {
        throw Refusal(name + " is no whole copy of a Ballhaven folder: " + reason + ". Nothing was taken from it.");
    }

    [[noreturn]] void RefuseDamaged() const {
        const char* const reason = archive_error_string(zip.get());
        Refuse(reason == nullptr ? "it is damaged" : "it is damaged (" + std::string(reason) + ")");
    }

    bool Next(archive_entry*& entry) {
        const int result = archive_read_next_header(zip.get(), &entry);
        if (result != ARCHIVE_OK && result != ARCHIVE_EOF) {
            RefuseDamaged();
        }
        return result == ARCHIVE_OK;
    }

    /// The name of an entry that is a plain file.
    std::string NameOf(archive_entry& entry) const {
        const char* const path = archive_entry_pathname_utf8(&entry);
        std::string file = path == nullptr ? "" : path;
        if (archive_entry_filetype(&entry) != AE_IFREG) {
            Refuse("it holds " + Shown(file) + ", which is no plain file");
        }
        if (archive_entry_is_encrypted(&entry) != 0) {
            Refuse(Shown(file) + " in it is encrypted");
        }
        return file;
    }

    /// The bytes of the entry at hand.
    std::string Bytes(std::size_t limit) {
        std::string bytes(limit + 1, '\0');
        std::size_t filled = 0;
        while (filled < bytes.size()) {
            const la_ssize_t count = archive_read_data(zip.get(), bytes.data() + filled, bytes.size() - filled);
            if (count < 0) {
                RefuseDamaged();
            }
            if (count == 0) {
                break;
            }
            filled += static_cast<std::size_t>(count);
        }
        if (filled > limit) {
            Refuse("a file in it is longer than any of its kind");
        }
        bytes.resize(filled);
        return bytes;
    }

    std::size_t LimitOf(const std::string& file) const {
        const std::vector<FolderFile> known = AllFolderFiles();
        const auto found = std::ranges::find(known, file, &FolderFile::name);
        if (found == known.end()) {
            Refuse("it holds " + Shown(file) + ", which is no file of such a folder");
        }
        return static_cast<std::size_t>(found->FormatLength());
    }

    std::string& NewList(std::optional<std::string>& list) const {
        if (list) {
            Refuse("it holds " + std::string(contentsName) + " twice");
        }
        return list.emplace();
    }

    std::string& NewFile(FileContents& files, const std::string& file) const {
        const auto [place, isNew] = files.emplace(file, std::string());
        if (!isNew) {
            Refuse("it holds " + file + " twice");
        }
        return *place->second;
    }

    /// Adds the files that were not there, by the list.
    void AddAbsentOnes(const std::string& list, FileContents& files) const {
        std::istringstream lines(list);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t blank = line.find(' ');
            if (blank != std::string::npos && std::string_view(line).substr(blank + 1) == absentWord) {
                const std::string file = line.substr(0, blank);
                (void)LimitOf(file);
                files.emplace(file, std::nullopt);
            }
        }
    }

    std::string name;
    Reader zip;
};

}  // namespace

std::string ArchiveOf(const FileContents& files) {
    std::string bytes;
    const Writer zip(archive_write_new(), archive_write_free);
    Check(archive_write_set_format_zip(zip.get()));
    Check(archive_write_set_bytes_per_block(zip.get(), 0));
    Check(archive_write_open(zip.get(), &bytes, nullptr, AppendTo, nullptr));
    Add(*zip, contentsName, Listed(files));
    for (const auto& [name, content] : files) {
        if (content) {
            Add(*zip, name, *content);
        }
    }
    Check(archive_write_close(zip.get()));
    return bytes;
}

FileContents FilesOf(std::string_view archive, const std::string& name) {
    return ArchiveReader(archive, name).Read();
}

}  // namespace ballhaven::data
