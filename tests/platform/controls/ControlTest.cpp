#include "platform/controls/Control.h"

#include "platform/controls/Controls.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

/// A widget that only notes what is asked of it.
class NotedView final : public ControlView {
  public:
    void Refresh() override { ++refreshes; }
    void TakeFocus() override { ++focused; }
    void BringToFront() override { ++raised; }
    [[nodiscard]] Bounds ScreenPlace() const override { return {15, 30, 45, 60}; }

    int refreshes = 0;
    int focused = 0;
    int raised = 0;
};

TEST(Control, WorksWithoutAWindow) {
    Label label;
    label.bounds = Bounds{1, 2, 3, 4};
    label.TakeFocus();
    label.BringToFront();

    EXPECT_EQ(*label.bounds, (Bounds{1, 2, 3, 4}));
    EXPECT_EQ(label.ScreenPlace(), std::nullopt);
    EXPECT_TRUE(label.visible && label.enabled);
}

TEST(Control, OneMeasureChangesAndTheOthersStay) {
    Label label;
    label.bounds = Bounds{1, 2, 3, 4};
    label.SetLeft(10);
    EXPECT_EQ(*label.bounds, (Bounds{10, 2, 3, 4}));
    label.SetTop(20);
    EXPECT_EQ(*label.bounds, (Bounds{10, 20, 3, 4}));
    label.SetWidth(30);
    EXPECT_EQ(*label.bounds, (Bounds{10, 20, 30, 4}));
    label.SetHeight(40);
    EXPECT_EQ(*label.bounds, (Bounds{10, 20, 30, 40}));
}

TEST(Control, ItsWidgetIsToldOfEveryChangeAndOfNothingElse) {
    NotedView view;
    Label label;
    label.view = &view;
    label.text = "Play";
    EXPECT_EQ(view.refreshes, 1);
    label.text = "Play";
    EXPECT_EQ(view.refreshes, 1) << "nothing has changed";
    label.text.SetQuietly("Slip");
    EXPECT_EQ(view.refreshes, 1) << "the widget shows it already";
    label.SetLeft(15);
    EXPECT_EQ(view.refreshes, 2);
}

TEST(Control, FocusPlaceAndOrderAreItsWidgets) {
    NotedView view;
    Label label;
    label.view = &view;
    label.TakeFocus();
    label.BringToFront();

    EXPECT_EQ(view.focused, 1);
    EXPECT_EQ(view.raised, 1);
    EXPECT_EQ(label.ScreenPlace(), (Bounds{15, 30, 45, 60}));
}

}  // namespace
}  // namespace ballhaven::platform
