// A library to be loaded before a program (LD_PRELOAD): what the program would offer to the network at every address is
// offered at the loopback address alone. run.sh uses it for the toolkit's VNC server, which has no setting for that.

#include <arpa/inet.h>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

int BindAsAsked(int socket, const sockaddr* address, socklen_t length) {
    return static_cast<int>(syscall(SYS_bind, socket, address, length));
}

}  // namespace

extern "C" int bind(int socket, const sockaddr* address, socklen_t length) noexcept {
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in narrowed{};
        std::memcpy(&narrowed, address, sizeof narrowed);
        narrowed.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return BindAsAsked(socket, reinterpret_cast<const sockaddr*>(&narrowed), sizeof narrowed);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        // The IPv4 loopback address in the form of IPv6, which viewers reach under 127.0.0.1.
        sockaddr_in6 narrowed{};
        std::memcpy(&narrowed, address, sizeof narrowed);
        inet_pton(AF_INET6, "::ffff:127.0.0.1", &narrowed.sin6_addr);
        return BindAsAsked(socket, reinterpret_cast<const sockaddr*>(&narrowed), sizeof narrowed);
    }
    return BindAsAsked(socket, address, length);
}
