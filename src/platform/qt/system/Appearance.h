#pragma once

class QApplication;

namespace ballhaven::platform {

/// Gives the application its looks: style, palette and font. Where the font is not installed, the system's own sans
/// serif of the same height stands in.
void InstallAppearance(QApplication& application);

}  // namespace ballhaven::platform
