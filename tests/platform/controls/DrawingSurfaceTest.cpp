#include "platform/controls/DrawingSurface.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(DrawingSurface, WithoutAWindowItsTextsHaveAFixedMeasure) {
    DrawingSurface surface;
    EXPECT_EQ(surface.TextWidth("777"), 21);
    EXPECT_EQ(surface.TextWidth(""), 0);
    EXPECT_EQ(surface.TextHeight(), 15);
    surface.Repaint();
}

TEST(DrawingSurface, AFocusRectangleDrawnTwiceIsGone) {
    DrawingSurface surface;
    surface.DrawFocusRect({1, 2, 10, 12});
    surface.DrawFocusRect({5, 2, 10, 12});
    EXPECT_EQ(surface.FocusRects().size(), 2U);
    surface.DrawFocusRect({1, 2, 10, 12});
    EXPECT_EQ(surface.FocusRects(), (std::vector<PixelRect>{{5, 2, 10, 12}}));
    surface.DrawFocusRect({5, 2, 10, 12});
    EXPECT_TRUE(surface.FocusRects().empty());
}

TEST(DrawingSurface, AnAreaHoldsItsEdges) {
    const PixelRect area{2, 3, 13, 14};
    EXPECT_TRUE(area.Holds({2, 3}));
    EXPECT_TRUE(area.Holds({13, 14}));
    EXPECT_FALSE(area.Holds({1, 3}));
    EXPECT_FALSE(area.Holds({2, 2}));
    EXPECT_FALSE(area.Holds({14, 14}));
    EXPECT_FALSE(area.Holds({13, 15}));
}

}  // namespace
}  // namespace ballhaven::platform
