#pragma once

namespace ballhaven::platform {

/// From now on assistive tools are told of an option as of a radio button, and choose it as the user does. The toolkit
/// would call it a check box, since its value, not the toolkit, sees to it that only one of a group is chosen.
void InstallToldOptions();

}  // namespace ballhaven::platform
