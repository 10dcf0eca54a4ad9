#include "platform/qt/widgets/PlainScrollBarStyle.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace ballhaven::platform {

namespace {

void DrawFace(QPainter& painter, const QRect& place, const QPalette& palette, bool pressed) {
    painter.fillRect(place, palette.color(QPalette::Dark));
    painter.fillRect(place.adjusted(1, 1, -1, -1), palette.color(pressed ? QPalette::Mid : QPalette::Button));
}

/// A triangle of four steps in the middle of a button.
void DrawArrow(QPainter& painter, const QRect& button, Qt::ArrowType arrow, const QColor& color) {
    constexpr int steps = 4;
    const QPoint middle = button.center();
    for (int step = 0; step < steps; ++step) {
        const int length = 2 * step + 1;
        const int offset = step - steps / 2;
        switch (arrow) {
            case Qt::UpArrow:
                painter.fillRect(middle.x() - step, middle.y() + offset, length, 1, color);
                break;
            case Qt::DownArrow:
                painter.fillRect(middle.x() - step, middle.y() - offset, length, 1, color);
                break;
            case Qt::LeftArrow:
                painter.fillRect(middle.x() + offset, middle.y() - step, 1, length, color);
                break;
            default:
                painter.fillRect(middle.x() - offset, middle.y() - step, 1, length, color);
                break;
        }
    }
}

void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QStyle& style, const QWidget* widget) {
    const bool upright = bar.orientation == Qt::Vertical;
    const bool enabled = bar.state.testFlag(QStyle::State_Enabled) && bar.minimum < bar.maximum;
    const auto place = [&](QStyle::SubControl part) {
        return style.subControlRect(QStyle::CC_ScrollBar, &bar, part, widget);
    };
    const auto pressed = [&bar](QStyle::SubControl part) {
        return bar.state.testFlag(QStyle::State_Sunken) && bar.activeSubControls.testFlag(part);
    };
    const auto button = [&](QStyle::SubControl part, Qt::ArrowType arrow) {
        DrawFace(painter, place(part), bar.palette, pressed(part));
        DrawArrow(painter, place(part), arrow,
                  bar.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    };
    painter.fillRect(bar.rect, bar.palette.color(QPalette::Midlight));
    button(QStyle::SC_ScrollBarSubLine, upright ? Qt::UpArrow : Qt::LeftArrow);
    button(QStyle::SC_ScrollBarAddLine, upright ? Qt::DownArrow : Qt::RightArrow);
    if (enabled) {
        DrawFace(painter, place(QStyle::SC_ScrollBarSlider), bar.palette, pressed(QStyle::SC_ScrollBarSlider));
    }
}

}  // namespace

void PlainScrollBarStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                             QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) {
        DrawScrollBar(*bar, *painter, *this, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

}  // namespace ballhaven::platform
