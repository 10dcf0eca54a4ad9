#pragma once

#include <cstdint>

namespace ballhaven::platform {

/// A colour: either fixed red, green and blue, or one of the system's own, which is told apart from a fixed colour of
/// the same looks and takes its value only when it is drawn.
class Color {
  public:
    enum class Source : std::uint8_t { Fixed, Window, WindowText, ButtonFace, ButtonShadow };

    constexpr Color() = default;
    constexpr Color(int redValue, int greenValue, int blueValue)
        : red(static_cast<std::uint8_t>(redValue)),
          green(static_cast<std::uint8_t>(greenValue)),
          blue(static_cast<std::uint8_t>(blueValue)) {}
    constexpr explicit Color(Source systemColor) : source(systemColor) {}

    bool operator==(const Color&) const = default;

    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    Source source = Source::Fixed;
};

inline constexpr Color black{0, 0, 0};
inline constexpr Color white{255, 255, 255};
inline constexpr Color red{255, 0, 0};
inline constexpr Color blue{0, 0, 255};
inline constexpr Color windowColor{Color::Source::Window};
inline constexpr Color windowTextColor{Color::Source::WindowText};
inline constexpr Color buttonFaceColor{Color::Source::ButtonFace};
inline constexpr Color buttonShadowColor{Color::Source::ButtonShadow};

}  // namespace ballhaven::platform
