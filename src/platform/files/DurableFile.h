#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ballhaven::platform {

/// What stands behind the name of a file while it is being saved.
inline constexpr std::string_view unsavedEnding = ".new";

/// The beginning of a file.
struct FileHead {
    std::string bytes;
    std::int64_t length = 0;  ///< of the whole file
};

/// Reads the first `limit` bytes of a file, or all if it is shorter; a missing file comes into being empty. Removes the
/// temporary file that a crash left beside it. Throws std::system_error, also where no regular file stands.
[[nodiscard]] FileHead ReadHead(const std::string& path, std::int64_t limit);

/// The same of a file that is there, with nothing made or removed; none where nothing is there.
[[nodiscard]] std::optional<FileHead> ReadHeadIfThere(const std::string& path, std::int64_t limit);

/// Makes the file `head`, followed by what it held from byte `tailOffset` on, with the permissions that it had; a
/// symbolic link goes on pointing to it, and a hole behind that byte stays one. Whatever the moment of a crash, of an
/// error or of a power failure, the file is the old one or the new one. Returns when it is on the disk. Throws
/// std::system_error; the file is the old one then, except where the flush of the directory, the last step, has failed.
void ReplaceHead(const std::string& path, std::string_view head, std::int64_t tailOffset);

/// A file that comes into being whole, and never in another one's place. Until it is saved its name is the first free
/// one of "Report.pdf.new", "Report (2).pdf.new" and so on; at the end of the scope it is gone, unless it was saved.
class NewFile {
  public:
    /// Begins a file in a folder, with a name of two parts such as "Report" and ".pdf". Throws std::system_error where
    /// the folder takes no file.
    NewFile(std::string folderPath, std::string nameStem, std::string nameEnding);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Puts the first bytes of the file, and then those behind them; what is added last can come with the save. Throws
    /// std::system_error.
    void Add(std::string_view bytes);

    /// Saves the file with these bytes at its end, for the user alone to read, under the first name that is free:
    /// "Report.pdf", else "Report (2).pdf", and so on. Returns its path when it is on the disk. Throws
    /// std::system_error; there is no file then, except where the flush of the directory, the last step, has failed.
    std::string Save(std::string_view bytes);

    /// The same under the name itself; throws std::system_error with EEXIST where something stands there.
    void SaveUnderItsName(std::string_view bytes);

  private:
    class Temporary;

    [[nodiscard]] std::string PathOf(int copy) const;
    void Finish(std::string_view bytes);

    const std::string folder;
    const std::string stem;
    const std::string ending;
    std::unique_ptr<Temporary> temporary;
};

}  // namespace ballhaven::platform
