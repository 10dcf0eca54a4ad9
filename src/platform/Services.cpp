#include "platform/Services.h"

namespace ballhaven::platform {

Services services;

}  // namespace ballhaven::platform
