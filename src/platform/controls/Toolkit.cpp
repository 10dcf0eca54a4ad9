#include "platform/controls/Toolkit.h"

namespace ballhaven::platform {

Toolkit* toolkit = nullptr;

}  // namespace ballhaven::platform
