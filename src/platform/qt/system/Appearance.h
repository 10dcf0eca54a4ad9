#pragma once

class QApplication;

namespace ballhaven::platform {

/// Gives the application its looks: style, palette and font. Where the font is not installed, one of the same
/// measures stands in, or else the system's own sans serif of the same height.
void InstallAppearance(QApplication& application);

}  // namespace ballhaven::platform
