#pragma once

namespace ballhaven::platform {

/// Positions and sizes are in twips, 15 to a pixel at scale 1.
inline constexpr int twipsPerPixel = 15;

/// A place inside a window or panel, in twips from its top left corner.
struct Bounds {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Bounds&) const = default;
};

}  // namespace ballhaven::platform
