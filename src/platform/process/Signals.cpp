#include "platform/process/Signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace ballhaven::platform {

namespace {

/// The end of a pipe into which the handler writes. A handler may do nothing else: the signal may have come anywhere.
volatile std::sig_atomic_t noticeEnd = -1;

void NoteSignal(int) {
    const int errorOfTheInterruptedCall = errno;
    [[maybe_unused]] const auto count = ::write(noticeEnd, "!", 1);  // a full pipe has told it already
    errno = errorOfTheInterruptedCall;
}

bool IsIgnored(int signal) {
    struct sigaction present {};
    return sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

void Catch(int signal) {
    struct sigaction action {};
    action.sa_handler = NoteSignal;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

}  // namespace

void LetWritesFail() {
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

int CatchEndSignals() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return -1;
    }
    noticeEnd = ends[1];
    Catch(SIGTERM);
    Catch(SIGINT);
    if (!IsIgnored(SIGHUP)) {  // whoever started it so wants it to outlive the terminal
        Catch(SIGHUP);
    }
    return ends[0];
}

}  // namespace ballhaven::platform
