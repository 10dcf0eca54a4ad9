#include "tools/FolderTool.h"

#include "state/RuntimeFailure.h"

#include <iostream>

namespace ballhaven::tools {

int RunFolderTool(const std::function<std::string()>& work, const std::string& done) {
    try {
        if (const std::string refusal = work(); !refusal.empty()) {
            std::cerr << refusal << '\n';
            return 1;
        }
    } catch (const RuntimeFailure& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    std::cout << done << '\n';
    return 0;
}

}  // namespace ballhaven::tools
