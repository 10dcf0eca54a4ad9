#include "platform/qt/widgets/PictureRenderer.h"

#include "platform/qt/widgets/BuiltPicture.h"

#include <QPainter>

namespace ballhaven::platform {

namespace {

// The scales above 1 that the build draws.
constexpr const char* largerScales[] = {"1.5", "2", "3"};

/// The smallest drawing that is not smaller than wanted, the largest one where all are.
QPixmap NextLarger(const std::string& name, const QSize& wanted) {
    QPixmap drawn;
    for (const char* scale : largerScales) {
        drawn = BuiltPicture(name, scale);
        if (drawn.width() >= wanted.width() && drawn.height() >= wanted.height()) {
            break;
        }
    }
    return drawn;
}

}  // namespace

void PictureRenderer::SetName(const std::string& name) {
    if (name != current) {
        current = name;
        isRead = name.empty();
        original = QPixmap();
        fitted = QPixmap();
    }
}

const QPixmap& PictureRenderer::Original() const {
    if (!isRead) {
        isRead = true;
        original = BuiltPicture(current, "1");
    }
    return original;
}

const QPixmap& PictureRenderer::Fitting(const QSize& size) const {
    if (original.size() == size) {
        return original;
    }
    if (fitted.size() != size) {
        const bool shrunk = size.width() < original.width() && size.height() < original.height();
        const QPixmap source = shrunk ? original : NextLarger(current, size);
        fitted = source.size() == size ? source : source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return fitted;
}

void PictureRenderer::Paint(QPainter& painter, const QRectF& place) const {
    if (!HasPicture()) {
        return;
    }
    const QTransform toScreen = painter.deviceTransform();
    const QRectF onScreen = toScreen.mapRect(place);
    const QRect pixels(onScreen.topLeft().toPoint(), onScreen.size().toSize());
    painter.drawPixmap(toScreen.inverted().mapRect(QRectF(pixels)), Fitting(pixels.size()),
                       QRectF(QPoint(), pixels.size()));
}

}  // namespace ballhaven::platform
