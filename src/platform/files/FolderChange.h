#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::platform {

/// The name of the list of a change that was decided, and what stands behind the names of the files that it puts.
inline constexpr const char* changeListName = "CHANGE";
inline constexpr std::string_view stagedEnding = ".next";

/// A change of several files of a folder that comes about for all of them or for none.
///
/// The new contents are put beside the files, as NAME.next, and flushed. Then a list of the steps, the file
/// "CHANGE", appears in one step: from there on the change is decided. The files take their places one after the other,
/// and the list goes. Whoever finds the list after a crash finishes the change with `FinishFolderChange`. A change of
/// one file needs no list.
///
/// Names are those of files directly in the folder. Every member throws std::system_error.
class FolderChange {
  public:
    explicit FolderChange(std::string folder);
    /// Drops what is not decided.
    ~FolderChange();
    FolderChange(const FolderChange&) = delete;
    FolderChange& operator=(const FolderChange&) = delete;

    /// The file is to hold `head`, followed by what it holds now from byte `tailOffset` on, with its permissions; one
    /// that is not there comes into being with those that the folder gives. A file that is protected against writing
    /// is refused.
    void Put(const std::string& name, std::string_view head, std::int64_t tailOffset);

    /// The file is to be gone; it may be gone already.
    void Remove(const std::string& name);

    /// Makes the change, and returns when it is on the disk. Where it throws, nothing has changed, unless the change
    /// `IsDecided`.
    void Commit();

    /// Whether the change came about, or will as soon as `FinishFolderChange` can do what is left of it.
    [[nodiscard]] bool IsDecided() const { return decided; }

  private:
    struct Step {
        std::string name;
        bool puts = false;  ///< else it removes
    };

    static void Take(const std::string& directory, const Step& step);
    /// The steps of the list; none where there is no list, or where the file that bears its name is somebody else's.
    static std::vector<Step> DecidedSteps(const std::string& directory);
    void Decide() const;
    void TakeAll();

    friend bool HasDecidedChange(const std::string& folder);
    friend void FinishFolderChange(const std::string& folder);

    std::string directory;
    std::vector<Step> steps;
    bool decided = false;
};

/// Whether a change was decided in a folder and not brought to its end. Throws std::system_error.
[[nodiscard]] bool HasDecidedChange(const std::string& folder);

/// Finishes the change that was decided in a folder and not brought to its end, if there is one. Throws
/// std::system_error; another call goes on where this one stopped.
void FinishFolderChange(const std::string& folder);

}  // namespace ballhaven::platform
