#pragma once

#include <optional>
#include <string>
#include <utility>

namespace ballhaven::platform {

/// An open handle of the system, closed at the end of its scope; -1 for none.
class Handle {
  public:
    explicit Handle(int number = -1) : handle(number) {}
    Handle(Handle&& other) noexcept : handle(other.handle) { other.handle = -1; }
    Handle(const Handle&) = delete;
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    Handle& operator=(const Handle&) = delete;
    ~Handle();

    [[nodiscard]] bool IsOpen() const { return handle >= 0; }
    [[nodiscard]] int Number() const { return handle; }

  private:
    int handle;
};

/// What a later instance asks of the first one.
struct InstanceRequest {
    std::string title;  ///< of the application that it looks for
    std::string token;  ///< that the desktop gave it, for bringing a window to the front; may be empty

    bool operator==(const InstanceRequest&) const = default;
};

/// The path of a socket of this name that no other user reaches: in the session's runtime directory, or, where there is
/// none, in a folder of this user's own below /tmp, which is made. Empty where neither is his alone.
[[nodiscard]] std::string PrivateSocketPath(const std::string& name);

/// A later instance that has connected to the first one.
class InstanceVisitor {
  public:
    enum class State { Speaking, HasAsked, Gone };

    explicit InstanceVisitor(Handle accepted) : connection(std::move(accepted)) {}

    /// Becomes readable when the visitor has said something or has gone.
    [[nodiscard]] int Number() const { return connection.Number(); }

    /// Takes what the visitor has said until now, without waiting. One that says too much counts as gone.
    [[nodiscard]] State Listen();

    /// What it has asked, once it has.
    [[nodiscard]] InstanceRequest Request() const;

    /// Tells it that it has been served.
    void Answer() const;

  private:
    Handle connection;
    std::string words;
};

/// The socket at which the first instance is reached.
class InstanceListener {
  public:
    /// Listens at a path; a socket that a killed process left there goes. The caller knows that none is alive.
    explicit InstanceListener(std::string path);
    InstanceListener(const InstanceListener&) = delete;
    InstanceListener& operator=(const InstanceListener&) = delete;
    ~InstanceListener();

    /// Becomes readable when a visitor waits; -1 where the system gives no socket.
    [[nodiscard]] int Number() const { return socket.Number(); }

    /// Lets the next visitor in; none where no one waits, or where it is another user's.
    [[nodiscard]] std::optional<InstanceVisitor> LetIn() const;

  private:
    std::string path;
    Handle socket;
};

/// Asks the first instance, which listens at a path, and waits for its answer; goes on trying as long as nobody
/// listens there. False where none has come after so many milliseconds, or where the listener is another user's, which
/// is told nothing.
[[nodiscard]] bool AskFirstInstance(const std::string& path, const InstanceRequest& request, int patience);

}  // namespace ballhaven::platform
