#include "platform/qt/widgets/Conversions.h"

#include "platform/files/CodePage.h"

#include <QGuiApplication>

#include <cmath>

namespace ballhaven::platform {

QString ToQString(std::string_view text) {
    return QString::fromStdU16String(ToUtf16(text));
}

std::string FromQString(const QString& text) {
    return FromUtf16(text.toStdU16String());
}

int ToPixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel));
}

int ToTwips(int pixels) {
    return pixels * twipsPerPixel;
}

QRect ToQRect(const Bounds& bounds) {
    const int left = ToPixels(bounds.left);
    const int top = ToPixels(bounds.top);
    return {left, top, ToPixels(bounds.left + bounds.width) - left, ToPixels(bounds.top + bounds.height) - top};
}

MouseButton ToMouseButton(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return MouseButton::Left;
        case Qt::RightButton:
            return MouseButton::Right;
        default:
            return MouseButton::Other;
    }
}

QColor ToQColor(const Color& color) {
    switch (color.source) {
        case Color::Source::Window:
            return PaletteColor(QPalette::Base);
        case Color::Source::WindowText:
            return PaletteColor(QPalette::WindowText);
        case Color::Source::ButtonFace:
            return PaletteColor(QPalette::Window);
        case Color::Source::ButtonShadow:
            return PaletteColor(QPalette::Dark);
        case Color::Source::Fixed:
            break;
    }
    return {color.red, color.green, color.blue};
}

QColor PaletteColor(QPalette::ColorRole role) {
    return QGuiApplication::palette().color(role);
}

}  // namespace ballhaven::platform
