#pragma once

namespace ballhaven::platform {

/// From now on assistive tools are told of a modal window as of a dialog.
void InstallWindowRoles();

}  // namespace ballhaven::platform
