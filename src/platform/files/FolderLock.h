#pragma once

#include <string>

namespace ballhaven::platform {

/// A lock on a folder itself, for as long as it lives. The system lets go of it however the process ends, and nothing
/// is ever written.
class FolderLock {
  public:
    explicit FolderLock(const std::string& directory);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Whether another lock on the same folder was there before. A folder that cannot be locked at all has none.
    [[nodiscard]] bool IsTakenByAnother() const { return takenByAnother; }

    /// Tells the folder from every other one of the machine, by whatever path it was reached; empty for a folder that
    /// cannot be opened.
    [[nodiscard]] const std::string& Key() const { return key; }

  private:
    std::string key;
    bool takenByAnother = false;
#ifdef _WIN32
    void* handle = nullptr;
#else
    int folder = -1;
#endif
};

}  // namespace ballhaven::platform
