#pragma once

namespace ballhaven::platform {

/// From now on assistive tools are told of the cells of drawing surfaces, each with its name, and of the selected one.
void InstallSurfaceCells();

}  // namespace ballhaven::platform
