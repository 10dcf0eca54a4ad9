#include "platform/qt/widgets/ControlWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QLabel>

#include <algorithm>

namespace ballhaven::platform {

namespace {

QString Spoken(const std::string& text) {
    return ToQString(text).remove(QLatin1Char('&')).trimmed();
}

QString AccessibleName(const Control& control, const std::string& ownText) {
    const QString text = Spoken(ownText);
    const bool textNames = std::any_of(text.begin(), text.end(), [](QChar each) { return each.isLetterOrNumber(); });
    if (!control.accessibleName->empty()) {
        return ToQString(*control.accessibleName);
    }
    return textNames || control.toolTip->empty() ? text : Spoken(*control.toolTip);
}

}  // namespace

void ShowCommon(const Control& control, QWidget& widget, const std::string& ownText) {
    widget.setObjectName(ToQString(control.name));
    widget.setAccessibleName(AccessibleName(control, ownText));
    widget.setToolTip(ToQString(*control.toolTip));
    widget.setGeometry(ToQRect(*control.bounds));
    widget.setEnabled(*control.enabled);
    widget.setVisible(*control.visible);
}

void NameByLabel(const Control& control, QWidget& widget) {
    if (control.label != nullptr) {
        if (auto* const shown = dynamic_cast<QLabel*>(control.label->view)) {
            shown->setBuddy(&widget);
        }
    }
}

Bounds ScreenPlaceOf(const QWidget& widget) {
    const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
    return {ToTwips(corner.x()), ToTwips(corner.y()), ToTwips(widget.width()), ToTwips(widget.height())};
}

bool IsClick(const QMouseEvent& release, const QWidget& widget) {
    const QPointF place = release.position();
    return release.button() == Qt::LeftButton && 0 <= place.x() && place.x() < widget.width() && 0 <= place.y() &&
           place.y() < widget.height();
}

}  // namespace ballhaven::platform
