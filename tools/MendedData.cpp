// ballhaven_mended DIR: makes a mended folder of a program folder that has no data yet.

#include "state/RuntimeFailure.h"
#include "tools/NewFolder.h"

#include <iostream>
#include <string>

int main(int argumentCount, char** arguments) {
    using namespace ballhaven::tools;
    if (argumentCount != 2) {
        std::cerr << "usage: ballhaven_mended DIR\n";
        return 2;
    }
    try {
        const std::string refusal = BeginFolder(arguments[1], FolderKind::Mended);
        if (!refusal.empty()) {
            std::cerr << refusal << '\n';
            return 1;
        }
    } catch (const ballhaven::RuntimeFailure& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    std::cout << arguments[1] << " is a mended folder now.\n";
    return 0;
}
