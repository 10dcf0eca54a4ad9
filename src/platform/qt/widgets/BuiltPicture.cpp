#include "platform/qt/widgets/BuiltPicture.h"

#include "platform/qt/widgets/Conversions.h"

#include <QImage>
#include <QResource>

#include <cstdint>
#include <cstring>
#include <utility>

namespace ballhaven::platform {

// Width and height, then the pixels as they go to the screen, as the build has written them.
QPixmap BuiltPicture(const std::string& name, const char* scale) {
    const QResource file(QStringLiteral(":/pictures/%1/%2.argb").arg(QLatin1String(scale), ToQString(name)));
    if (!file.isValid()) {
        return {};
    }
    std::int32_t size[2];
    std::memcpy(size, file.data(), sizeof size);
    QImage picture(size[0], size[1], QImage::Format_ARGB32_Premultiplied);
    std::memcpy(picture.bits(), file.data() + sizeof size, static_cast<std::size_t>(picture.sizeInBytes()));
    return QPixmap::fromImage(std::move(picture), Qt::NoOpaqueDetection);
}

}  // namespace ballhaven::platform
