#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace ballhaven::support {

namespace {

void Check(int result) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category());
    }
}

[[noreturn]] void WorkAsChild(const std::function<std::string()>& work, int output) {
    std::string words;
    try {
        words = work();
    } catch (const std::exception& failure) {
        words = failure.what();
    }
    const bool told = write(output, words.data(), words.size()) == static_cast<ssize_t>(words.size());
    _exit(told ? 0 : 1);
}

}  // namespace

ChildEnd RunInChild(const std::function<std::string()>& work) {
    int ends[2];
    Check(pipe(ends));
    const pid_t child = fork();
    Check(child);
    if (child == 0) {
        close(ends[0]);
        WorkAsChild(work, ends[1]);
    }
    close(ends[1]);

    ChildEnd end;
    char letter = 0;
    while (read(ends[0], &letter, 1) == 1) {
        end.words += letter;
    }
    close(ends[0]);
    int status = 0;
    Check(waitpid(child, &status, 0));
    end.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    return end;
}

void KillThisProcess() {
    kill(getpid(), SIGKILL);
    _exit(1);
}

void BecomeOrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0) {
        Check(setgroups(0, nullptr));
        Check(setgid(nobody));
        Check(setuid(nobody));
    }
}

void LimitFileLength(std::size_t bytes) {
    const rlimit limit{bytes, bytes};
    Check(setrlimit(RLIMIT_FSIZE, &limit));
}

}  // namespace ballhaven::support
