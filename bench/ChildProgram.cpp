#include "bench/ChildProgram.h"

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace ballhaven::bench {

ChildProgram::ChildProgram(std::vector<std::string> command) {
    std::vector<char*> words;
    for (std::string& word : command) {
        words.push_back(word.data());
    }
    words.push_back(nullptr);
    const int result = ::posix_spawnp(&process, words[0], nullptr, nullptr, words.data(), environ);
    if (result != 0) {
        throw std::system_error(result, std::generic_category(), command[0]);
    }
}

ChildProgram::ChildProgram(ChildProgram&& other) noexcept : process(std::exchange(other.process, 0)) {}

ChildProgram::~ChildProgram() {
    End();
}

void ChildProgram::End() {
    if (process != 0) {
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
        process = 0;
    }
}

}  // namespace ballhaven::bench
