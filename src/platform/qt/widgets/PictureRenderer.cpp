#include "platform/qt/widgets/PictureRenderer.h"

#include "platform/qt/widgets/Conversions.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace ballhaven::platform {

PictureRenderer::PictureRenderer() = default;
PictureRenderer::~PictureRenderer() = default;

void PictureRenderer::SetName(const std::string& name) {
    if (name == current) {
        return;
    }
    current = name;
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(ToQString(name));
    renderer = QFile::exists(file) ? std::make_unique<QSvgRenderer>(file) : nullptr;
}

bool PictureRenderer::HasPicture() const {
    return renderer != nullptr && renderer->isValid();
}

QSizeF PictureRenderer::Size() const {
    return HasPicture() ? QSizeF(renderer->defaultSize()) : QSizeF();
}

void PictureRenderer::Paint(QPainter& painter, const QRectF& place) const {
    if (HasPicture()) {
        painter.setRenderHint(QPainter::Antialiasing);
        renderer->render(&painter, place);
    }
}

}  // namespace ballhaven::platform
