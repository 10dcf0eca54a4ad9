#pragma once

#include <QPixmap>

#include <string>

namespace ballhaven::platform {

/// A picture of the program's resources as the build has drawn it for a scale, "1", "1.5", "2" or "3"; a null one where
/// there is none of the name.
[[nodiscard]] QPixmap BuiltPicture(const std::string& name, const char* scale);

}  // namespace ballhaven::platform
