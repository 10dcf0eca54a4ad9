#pragma once

#include <functional>

namespace ballhaven::platform {

/// Runs what the toolkit calls, so that no exception travels through it. A failure that nothing caught is named in one
/// critical box, and the process ends without saving.
void RunGuarded(const std::function<void()>& handler);

}  // namespace ballhaven::platform
