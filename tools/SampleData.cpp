// ballhaven_sample [--mended] DIR: makes sample games in a program folder that has no data yet; with --mended, a mended
// folder.

#include "tools/FolderTool.h"
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
    const std::string& folder = arguments.front();
    return RunFolderTool([&] { return FillSampleFolder(folder, kind); },
                         std::to_string(SampleGames().size()) + " sample games made in " + folder + ".");
}
