#include "data/CommandLine.h"
#include "platform/Services.h"
#include "platform/process/LocalTime.h"
#include "platform/process/Signals.h"
#include "platform/process/StandardStreams.h"

#include <filesystem>
#include <iostream>
#include <unistd.h>

int main(int argc, char** argv) {
    ballhaven::platform::FillStandardStreams();
    ballhaven::platform::LetWritesFail();
    ballhaven::platform::services.now = ballhaven::platform::CurrentLocalTime;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    const ballhaven::data::Console console{std::cout, std::cerr, isatty(STDERR_FILENO) == 1};
    return ballhaven::data::RunCommandLine({argv + 1, argv + argc}, program.parent_path().string(), console);
}
