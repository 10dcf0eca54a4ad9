// ballhaven_mended DIR: makes a mended folder of a program folder that has no data yet.

#include "tools/FolderTool.h"
#include "tools/NewFolder.h"

#include <iostream>
#include <string>

int main(int argumentCount, char** arguments) {
    using namespace ballhaven::tools;
    if (argumentCount != 2) {
        std::cerr << "usage: ballhaven_mended DIR\n";
        return 2;
    }
    const std::string folder = arguments[1];
    return RunFolderTool([&] { return BeginFolder(folder, FolderKind::Mended); }, folder + " is a mended folder now.");
}
