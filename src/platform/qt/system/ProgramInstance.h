#pragma once

#include <functional>
#include <memory>
#include <string>

class QLocalServer;
class QLocalSocket;
class QString;

namespace ballhaven::platform {

class FolderLock;

/// This process among those that work on the same program folder. The first one holds a lock on the folder itself for
/// as long as it lives, so that nothing is left behind however it ends, and listens for those that come after it.
class ProgramInstance {
  public:
    ProgramInstance();
    ~ProgramInstance();
    ProgramInstance(const ProgramInstance&) = delete;
    ProgramInstance& operator=(const ProgramInstance&) = delete;

    /// Tries to be the first process on a folder; false when another one is. A folder that cannot be locked has no
    /// other process. Only the first call looks at the folder.
    bool BecomeFirst(const std::string& directory);

    /// Asks the first process on the folder to come to the front if its application bears this title, and hands over
    /// what the desktop gave this process for it. Waits a few seconds for its answer.
    void ActivateFirst(const std::string& title) const;

    /// What the first process does when it is asked: it is given the desktop's token, which may be empty.
    std::function<void(const std::string& token)> comeToFront;

  private:
    void Listen();
    void Serve(QLocalSocket& visitor) const;
    [[nodiscard]] QString ServerName() const;

    std::unique_ptr<FolderLock> lock;
    std::unique_ptr<QLocalServer> server;
};

}  // namespace ballhaven::platform
