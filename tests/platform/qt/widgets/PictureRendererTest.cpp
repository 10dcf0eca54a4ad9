#include "platform/qt/widgets/PictureRenderer.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

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

    EXPECT_EQ(renderer.Size(), QSizeF(32, 32));
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
    EXPECT_EQ(renderer.Size(), QSizeF());
    EXPECT_EQ(Paint(renderer), Blank());
}

}  // namespace
}  // namespace ballhaven::platform
