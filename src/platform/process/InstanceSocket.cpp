#include "platform/process/InstanceSocket.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace ballhaven::platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t longestRequest = 4096;
constexpr int mostWaitingVisitors = 8;
constexpr std::chrono::milliseconds pauseBetweenAttempts{50};
constexpr mode_t ownerOnly = 0700;
constexpr mode_t rightsOfOthers = 0077;
constexpr std::string_view answer = "done\n";

// A request is two lines: the title, and the token.
std::string TextOf(const InstanceRequest& request) {
    return request.title + "\n" + request.token + "\n";
}

std::size_t EndOfLine(const std::string& text, std::size_t begin) {
    return text.find('\n', begin);
}

bool IsPrivate(const std::string& folder) {
    struct stat found {};
    return folder.starts_with('/') && lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == geteuid() && (found.st_mode & rightsOfOthers) == 0;
}

std::optional<sockaddr_un> AddressOf(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path) {
        return std::nullopt;
    }
    path.copy(address.sun_path, path.size());
    return address;
}

Handle NewSocket() {
    return Handle(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

bool Connect(const Handle& socket, const sockaddr_un& address) {
    return connect(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// Whether the process at the other end is this user's.
bool IsOwn(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

bool Say(int connection, std::string_view words) {
    return send(connection, words.data(), words.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(words.size());
}

int MillisecondsUntil(Clock::time_point end) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    return static_cast<int>(std::max<std::int64_t>(left, 0));
}

bool HearsAnswer(int connection, Clock::time_point end) {
    pollfd waiting{connection, POLLIN, 0};
    if (poll(&waiting, 1, MillisecondsUntil(end)) != 1) {
        return false;
    }
    std::array<char, answer.size()> words{};
    return recv(connection, words.data(), words.size(), 0) == static_cast<ssize_t>(answer.size()) &&
           std::string_view(words.data(), words.size()) == answer;
}

}  // namespace

Handle::~Handle() {
    if (IsOpen()) {
        close(handle);
    }
}

std::string PrivateSocketPath(const std::string& name) {
    const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && IsPrivate(runtime) && AddressOf(runtime + ("/" + name))) {
        return runtime + ("/" + name);
    }
    const std::string folder = "/tmp/ballhaven-" + std::to_string(geteuid());
    mkdir(folder.c_str(), ownerOnly);  // whatever stands there already is looked at as well
    return IsPrivate(folder) ? folder + "/" + name : std::string();
}

InstanceVisitor::State InstanceVisitor::Listen() {
    std::array<char, longestRequest> piece{};
    const auto count = recv(connection.Number(), piece.data(), piece.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        return State::Speaking;
    }
    if (count <= 0) {
        return State::Gone;
    }
    words.append(piece.data(), static_cast<std::size_t>(count));
    if (words.size() > longestRequest) {
        return State::Gone;
    }
    const std::size_t first = EndOfLine(words, 0);
    const bool isWhole = first != std::string::npos && EndOfLine(words, first + 1) != std::string::npos;
    return isWhole ? State::HasAsked : State::Speaking;
}

InstanceRequest InstanceVisitor::Request() const {
    const std::size_t first = EndOfLine(words, 0);
    const std::size_t second = EndOfLine(words, first + 1);
    return {words.substr(0, first), words.substr(first + 1, second - first - 1)};
}

void InstanceVisitor::Answer() const {
    [[maybe_unused]] const bool heard = Say(connection.Number(), answer);
}

InstanceListener::InstanceListener(std::string socketPath) : path(std::move(socketPath)), socket(NewSocket()) {
    const std::optional<sockaddr_un> address = AddressOf(path);
    if (!socket.IsOpen() || !address) {
        return;
    }
    unlink(path.c_str());
    if (bind(socket.Number(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0) {
        listen(socket.Number(), mostWaitingVisitors);
    }
}

InstanceListener::~InstanceListener() {
    unlink(path.c_str());
}

std::optional<InstanceVisitor> InstanceListener::LetIn() const {
    Handle connection(accept4(socket.Number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!connection.IsOpen() || !IsOwn(connection.Number())) {
        return std::nullopt;
    }
    return InstanceVisitor(std::move(connection));
}

bool AskFirstInstance(const std::string& path, const InstanceRequest& request, int patience) {
    const std::optional<sockaddr_un> address = AddressOf(path);
    std::string words = TextOf(request);
    if (words.size() > longestRequest) {
        words = TextOf({request.title, {}});
    }
    const auto end = Clock::now() + std::chrono::milliseconds(patience);
    // The first instance may hold its lock already and not listen yet, or lose a visitor who is slow.
    while (address && Clock::now() < end) {
        const Handle socket = NewSocket();
        if (Connect(socket, *address)) {
            if (!IsOwn(socket.Number())) {
                return false;
            }
            if (Say(socket.Number(), words) && HearsAnswer(socket.Number(), end)) {
                return true;
            }
        }
        std::this_thread::sleep_for(pauseBetweenAttempts);
    }
    return false;
}

}  // namespace ballhaven::platform
