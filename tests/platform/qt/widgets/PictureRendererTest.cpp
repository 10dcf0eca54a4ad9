#include "platform/qt/widgets/PictureRenderer.h"

#include "platform/qt/widgets/BuiltPicture.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <utility>

namespace ballhaven::platform {
namespace {

QImage Paint(const PictureRenderer& renderer) {
    QImage canvas(40, 40, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    renderer.Paint(painter, QRectF(4, 4, 32, 32));
    return canvas;
}

QImage Blank() {
    return Paint(PictureRenderer());
}

TEST(PictureRenderer, DrawsAPictureInsideItsPlaceOnly) {
    PictureRenderer renderer;
    renderer.SetName("print");
    const QImage drawn = Paint(renderer);

    EXPECT_TRUE(renderer.HasPicture());
    EXPECT_NE(drawn, Blank());
    EXPECT_EQ(drawn.copy(0, 0, 40, 3), Blank().copy(0, 0, 40, 3));
}

TEST(PictureRenderer, KnowsTheSizeThatAPictureWasDrawnAt) {
    PictureRenderer renderer;
    renderer.SetName("print");

    EXPECT_EQ(renderer.Size(), QSize(32, 32));
}

TEST(PictureRenderer, TakesTheNextName) {
    PictureRenderer renderer;
    renderer.SetName("print");
    const QImage first = Paint(renderer);
    renderer.SetName("erase-play");

    EXPECT_NE(Paint(renderer), first);
}

TEST(PictureRenderer, AnEmptyOrUnknownNameDrawsNothing) {
    PictureRenderer renderer;
    for (const char* name : {"print", "", "no-such-picture"}) {
        renderer.SetName(name);
    }

    EXPECT_FALSE(renderer.HasPicture());
    EXPECT_EQ(renderer.Size(), QSize(0, 0));
    EXPECT_EQ(Paint(renderer), Blank());
}

/// A picture on a canvas of a scale, drawn at a place in pixels of scale 1.
QImage PaintAt(double scale, const QRectF& place, const char* name) {
    QImage canvas(QSize(48, 48) * scale, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(scale);
    canvas.fill(Qt::transparent);
    PictureRenderer renderer;
    renderer.SetName(name);
    QPainter painter(&canvas);
    renderer.Paint(painter, place);
    return canvas;
}

TEST(PictureRenderer, CopiesTheDrawingOfTheScreensScalePixelByPixel) {
    const std::pair<double, const char*> scales[] = {{1, "1"}, {1.5, "1.5"}, {2, "2"}, {3, "3"}};
    for (const auto& [scale, folder] : scales) {
        const QImage painted = PaintAt(scale, QRectF(8, 8, 32, 32), "print");
        const QRect place(QPoint(8, 8) * scale, QSize(32, 32) * scale);
        QImage copied = painted.copy(place);
        copied.setDevicePixelRatio(1);
        EXPECT_EQ(copied, BuiltPicture("print", folder).toImage()) << folder;
    }
}

TEST(PictureRenderer, APlaceBetweenTwoPixelsIsMovedToWholeOnes) {
    const QImage painted = PaintAt(1, QRectF(7.6, 8.4, 32, 32), "print");
    EXPECT_EQ(painted.copy(8, 8, 32, 32), BuiltPicture("print", "1").toImage());
}

TEST(PictureRenderer, FillsItsPlaceOnAScreenOfAScaleInBetween) {
    const QImage painted = PaintAt(1.25, QRectF(8, 8, 32, 32), "cards-hilite");
    for (const QPoint inside : {QPoint(10, 10), QPoint(49, 10), QPoint(10, 49), QPoint(49, 49)}) {
        EXPECT_EQ(painted.pixelColor(inside).alpha(), 255) << inside.x() << ' ' << inside.y();
    }
    for (const QPoint outside : {QPoint(9, 9), QPoint(50, 10), QPoint(10, 50), QPoint(50, 50)}) {
        EXPECT_EQ(painted.pixelColor(outside).alpha(), 0) << outside.x() << ' ' << outside.y();
    }
}

}  // namespace
}  // namespace ballhaven::platform
