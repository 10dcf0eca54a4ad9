// ballhaven_floors DIR: prints the faults that the floors of the source tree in DIR have, and the rooms without a file
// of tests; 1 if there is one.

#include "tools/FloorCheck.h"

#include <iostream>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: ballhaven_floors DIR\n";
        return 2;
    }
    auto faults = ballhaven::tools::FloorFaults(arguments[1]);
    const auto untested = ballhaven::tools::UntestedRooms(arguments[1]);
    faults.insert(faults.end(), untested.begin(), untested.end());
    for (const std::string& fault : faults) {
        std::cout << fault << '\n';
    }
    std::cout << (faults.empty() ? "The floors hold.\n" : "The floors do not hold.\n");
    return faults.empty() ? 0 : 1;
}
