#pragma once

#include "platform/process/InstanceSocket.h"

#include <QScopedPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>

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

    /// Tries to be the first process on a folder, or stays it; false when another one is. Throws std::system_error for
    /// a folder that cannot be locked.
    [[nodiscard]] bool BecomeFirst(const std::string& directory);

    /// Asks the first process on the folder to come to the front if its application bears this title, and hands over
    /// what the desktop gave this process for it. False where no process of this user has answered within two seconds
    /// and a half.
    [[nodiscard]] bool ActivateFirst(const std::string& title) const;

    /// Listens no longer: the process is about to end.
    void Leave();

    /// What the first process does when it is asked: it is given the desktop's token, which may be empty.
    std::function<void(const std::string& token)> comeToFront;

  private:
    void Listen();
    void Receive();
    void HearVisitor();
    void Serve(const InstanceRequest& request) const;
    void Dismiss();
    [[nodiscard]] std::string SocketPath() const;

    std::unique_ptr<FolderLock> lock;
    std::unique_ptr<InstanceListener> listener;
    std::unique_ptr<QSocketNotifier> arrivals;

    // Visitors are served one by one, so that many of them take no more than one.
    std::optional<InstanceVisitor> visitor;
    std::unique_ptr<QSocketNotifier, QScopedPointerDeleteLater> visitorsWords;  // may be what has called
    QTimer visitorsTime;
};

}  // namespace ballhaven::platform
