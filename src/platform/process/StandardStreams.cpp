#include "platform/process/StandardStreams.h"

#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace ballhaven::platform {

void FillStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const bool isMissing = fcntl(stream, F_GETFD) < 0;
        if (isMissing && open("/dev/null", O_RDONLY) != stream) {  // the lowest free number is the stream's
            return;
        }
    }
}

}  // namespace ballhaven::platform
