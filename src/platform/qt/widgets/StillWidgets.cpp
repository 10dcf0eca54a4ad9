#include "platform/qt/widgets/StillWidgets.h"

#include "platform/qt/widgets/Conversions.h"

#include <QPainter>

namespace ballhaven::platform {

namespace {

constexpr int ruleWidth = 2;  // a dark line and a light one beside it

}  // namespace

PanelWidget::PanelWidget(Panel& shownPanel, QWidget* parent) : ControlWidget(shownPanel, parent), panel(shownPanel) {
    Refresh();
}

void PanelWidget::Refresh() {
    ShowCommon(panel, *this);
    update();
}

void PanelWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    if (*panel.alignment == Panel::Alignment::Top) {
        painter.drawLine(rect().bottomLeft(), rect().bottomRight());
    } else if (*panel.alignment == Panel::Alignment::Left) {
        painter.drawLine(rect().topRight(), rect().bottomRight());
    }
}

LineWidget::LineWidget(Line& shownLine, QWidget* parent) : ControlWidget(shownLine, parent), line(shownLine) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    Refresh();
}

void LineWidget::Refresh() {
    ShowCommon(line, *this);
    resize(size().expandedTo(QSize(ruleWidth, ruleWidth)));
    update();
}

void LineWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor dark = palette().color(QPalette::Dark);
    const QColor light = palette().color(QPalette::Light);
    if (height() <= ruleWidth) {
        painter.fillRect(0, 0, width(), 1, dark);
        painter.fillRect(0, 1, width(), 1, light);
    } else if (width() <= ruleWidth) {
        painter.fillRect(0, 0, 1, height(), dark);
        painter.fillRect(1, 0, 1, height(), light);
    } else {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(dark);
        painter.drawLine(rect().topLeft(), rect().bottomRight());
    }
}

PictureWidget::PictureWidget(Picture& shownPicture, QWidget* parent)
    : ControlWidget(shownPicture, parent), picture(shownPicture) {
    Refresh();
}

void PictureWidget::Refresh() {
    ShowCommon(picture, *this);
    renderer.SetName(*picture.picture);
    update();
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QRect place(QPoint(0, 0), renderer.Size());
    place.moveCenter(rect().center());
    QPainter painter(this);
    if (renderer.HasPicture() && !place.contains(rect())) {
        painter.fillRect(rect(), palette().color(QPalette::Dark));  // what the picture leaves of it is its frame
        painter.fillRect(rect().adjusted(1, 1, -1, -1), palette().color(QPalette::Window));
    }
    renderer.Paint(painter, place);
}

// A press that is not accepted would take its release to the window.
void PictureWidget::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(picture.click != nullptr);
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (picture.click && IsClick(*event, *this)) {
        const QPointF place = event->position() * twipsPerPixel;
        Report([&] { picture.click(place.x(), place.y()); });
    }
}

}  // namespace ballhaven::platform
