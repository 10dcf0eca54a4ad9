// ballhaven_sample DIR: makes sample games in a program folder that has no data yet.

#include "state/RuntimeFailure.h"
#include "tools/SampleGames.h"

#include <iostream>
#include <string>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: ballhaven_sample DIR\n";
        return 2;
    }
    try {
        const std::string refusal = ballhaven::tools::FillSampleFolder(arguments[1]);
        if (!refusal.empty()) {
            std::cerr << refusal << '\n';
            return 1;
        }
    } catch (const ballhaven::RuntimeFailure& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    std::cout << ballhaven::tools::SampleGames().size() << " sample games made in " << arguments[1] << ".\n";
    return 0;
}
