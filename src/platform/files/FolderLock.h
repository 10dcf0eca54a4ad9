#pragma once

#include <string>

namespace ballhaven::platform {

/// A lock on a folder itself, for as long as it lives. The system lets go of it however the process ends, and nothing
/// is ever written.
class FolderLock {
  public:
    /// Opens the folder. Throws std::system_error where that cannot be.
    explicit FolderLock(const std::string& directory);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Takes the lock, or keeps it; false while there is another one on the folder. Throws std::system_error where the
    /// system gives no lock for any other reason, so that nobody takes a folder for his own that he cannot lock.
    [[nodiscard]] bool Take();

    /// Tells the folder from every other one of the machine, by whatever path it was reached.
    [[nodiscard]] const std::string& Key() const { return key; }

  private:
    int folder;
    std::string key;
};

}  // namespace ballhaven::platform
