#include "bench/VirtualScreen.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/mman.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace ballhaven::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::microseconds pollInterval{200};

[[noreturn]] void Fail(const std::string& what) {
    throw std::system_error(errno, std::generic_category(), what);
}

/// Starts the server and waits until it takes clients. It chooses a free display and tells its number through a pipe.
ChildProgram StartedServer(const std::string& directory) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) {
        Fail("pipe");
    }
    ChildProgram server({"Xvfb", "-displayfd", std::to_string(pipe[1]), "-screen", "0", "1024x768x24", "-fbdir",
                         directory, "-nocursor", "-noreset", "-nolisten", "tcp"});
    ::close(pipe[1]);
    std::string display = ":";
    for (char digit = 0; ::read(pipe[0], &digit, 1) == 1 && digit != '\n';) {
        display += digit;
    }
    ::close(pipe[0]);
    if (display == ":") {
        errno = ENODEV;
        Fail("Xvfb");
    }
    ::setenv("DISPLAY", display.c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    return server;
}

}  // namespace

VirtualScreen::VirtualScreen() : server(StartedServer(directory.Path())) {
    const std::string path = directory / "Xvfb_screen0";
    size = std::filesystem::file_size(path);
    const int file = ::open(path.c_str(), O_RDONLY);
    void* const memory = file < 0 ? MAP_FAILED : ::mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED) {
        Fail(path);
    }
    ::close(file);
    frameBuffer = static_cast<const char*>(memory);
    empty.assign(frameBuffer, size);
}

VirtualScreen::~VirtualScreen() {
    ::munmap(const_cast<char*>(frameBuffer), size);
}

bool VirtualScreen::WaitFor(const Picture& picture, std::chrono::milliseconds patience) const {
    const auto end = Clock::now() + patience;
    while (!Shows(picture)) {
        if (Clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(pollInterval);
    }
    return true;
}

Picture VirtualScreen::NextStillPicture(std::chrono::milliseconds patience, std::chrono::milliseconds stillTime) const {
    Picture picture = empty;
    const auto start = Clock::now();
    auto lastChange = start;
    while (Clock::now() < start + patience) {
        if (!Shows(picture)) {
            picture.assign(frameBuffer, size);
            lastChange = Clock::now();
        } else if (picture != empty && Clock::now() > lastChange + stillTime) {
            return picture;
        }
        std::this_thread::sleep_for(pollInterval);
    }
    return empty;
}

bool VirtualScreen::Shows(const Picture& picture) const {
    return std::memcmp(frameBuffer, picture.data(), size) == 0;
}

}  // namespace ballhaven::bench
