#pragma once

#include "data/folder/CopyArchive.h"
#include "platform/files/FolderLock.h"

#include <memory>
#include <string>

namespace ballhaven::data {

/// Where a folder keeps what its changes have replaced.
inline constexpr const char* copiesFolder = "copies";

/// What becomes of a change of the folder that was decided and not brought to its end.
enum class DecidedChange { Finish, Leave };

/// A folder of Ballhaven that this process has for its own as long as this lives.
class WorkFolder {
  public:
    /// Takes the folder. Throws Refusal where it is in use, or is none that can be used.
    explicit WorkFolder(const std::string& folder, DecidedChange decided = DecidedChange::Finish);

    /// With a separator at its end.
    [[nodiscard]] const std::string& Path() const { return directory; }

    /// Whether a change that was decided before has been brought to its end when the folder was taken.
    [[nodiscard]] bool HasFinishedChange() const { return finishedChange; }

    /// Changes files, all or nothing, up to the last record of their formats. What they held before is kept in a zip in
    /// the folder "copies", named by the current time and the occasion, such as "import". Returns the path of that
    /// zip. Refuses to remove or shorten a file that goes on behind its last record: no copy keeps that. Throws
    /// Refusal; nothing has changed then, unless the words say otherwise.
    std::string Change(const FileContents& files, const std::string& occasion) const;

  private:
    void KeepTails(const FileContents& files) const;
    [[nodiscard]] std::string KeepCopy(const FileContents& files, const std::string& occasion) const;

    std::string directory;
    std::unique_ptr<platform::FolderLock> lock;
    bool finishedChange = false;
};

}  // namespace ballhaven::data
