#include "platform/files/Paths.h"

namespace ballhaven::platform {

std::string WithSeparator(std::string directory) {
    if (directory.empty() || directory.back() != directorySeparator) {
        directory += directorySeparator;
    }
    return directory;
}

}  // namespace ballhaven::platform
