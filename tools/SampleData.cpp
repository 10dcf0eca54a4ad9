// ballhaven_sample [--mended] DIR: makes sample games in a program folder that has no data yet; with --mended, a mended
// folder.

#include "state/RuntimeFailure.h"
#include "tools/SampleGames.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argumentCount, char** values) {
    using namespace ballhaven::tools;
    std::vector<std::string> arguments(values + 1, values + argumentCount);
    const FolderKind kind = std::erase(arguments, "--mended") > 0 ? FolderKind::Mended : FolderKind::Ordinary;
    if (arguments.size() != 1) {
        std::cerr << "usage: ballhaven_sample [--mended] DIR\n";
        return 2;
    }
    try {
        const std::string refusal = FillSampleFolder(arguments[0], kind);
        if (!refusal.empty()) {
            std::cerr << refusal << '\n';
            return 1;
        }
    } catch (const ballhaven::RuntimeFailure& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    std::cout << SampleGames().size() << " sample games made in " << arguments[0] << ".\n";
    return 0;
}
