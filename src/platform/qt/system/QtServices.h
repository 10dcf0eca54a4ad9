#pragma once

namespace ballhaven::platform {

class ProgramInstance;
class QtToolkit;

/// Sets everything in `services` to the real surroundings. Both arguments must live as long as `services` is used.
void InstallQtServices(QtToolkit& qtToolkit, ProgramInstance& instance);

}  // namespace ballhaven::platform
