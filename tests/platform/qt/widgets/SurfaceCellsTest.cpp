#include "platform/qt/widgets/SurfaceCells.h"

#include "platform/controls/DrawingSurface.h"
#include "support/qt/TestWindow.h"

#include <QAccessible>
#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::platform {
namespace {

class SurfaceCells : public testing::Test {
  protected:
    void SetUp() override {
        surface.name = "surface";
        surface.bounds = Bounds{0, 0, 1500, 1500};
        surface.cells = [this] { return cells; };
        form.Show();
    }

    [[nodiscard]] QAccessibleInterface& Told() {
        return *QAccessible::queryAccessibleInterface(form.Find<QWidget>("surface"));
    }

    std::vector<SurfaceCell> cells = {{{10, 10, 30, 20}, "first"}, {{30, 10, 50, 20}, "second", true}};
    DrawingSurface surface;
    support::TestWindow form{&surface};
};

TEST_F(SurfaceCells, AreToldWithTheirNamesAndTheSelectedOne) {
    ASSERT_EQ(Told().childCount(), 2);
    EXPECT_EQ(Told().child(0)->role(), QAccessible::Cell);
    EXPECT_EQ(Told().child(0)->text(QAccessible::Name), QStringLiteral("first"));
    EXPECT_FALSE(Told().child(0)->state().selected);
    EXPECT_EQ(Told().child(1)->text(QAccessible::Name), QStringLiteral("second"));
    EXPECT_TRUE(Told().child(1)->state().selected);
    EXPECT_EQ(Told().child(1)->parent(), &Told());
    EXPECT_EQ(Told().child(2), nullptr);
}

TEST_F(SurfaceCells, AreFoundAtTheirPlaces) {
    auto& widget = *form.Find<QWidget>("surface");
    const QPoint inSecond = widget.mapToGlobal(QPoint(40, 15));
    EXPECT_EQ(Told().indexOfChild(Told().childAt(inSecond.x(), inSecond.y())), 1);
    EXPECT_EQ(Told().child(0)->rect(), QRect(widget.mapToGlobal(QPoint(10, 10)), QSize(20, 10)));
    const QPoint beside = widget.mapToGlobal(QPoint(5, 5));
    EXPECT_EQ(Told().childAt(beside.x(), beside.y()), nullptr);
}

TEST_F(SurfaceCells, SayWhatIsDrawnAtTheTime) {
    QAccessibleInterface* const second = Told().child(1);
    cells[1].name = "another";
    EXPECT_EQ(second->text(QAccessible::Name), QStringLiteral("another"));
    cells.pop_back();
    EXPECT_FALSE(second->isValid());
    EXPECT_EQ(second->text(QAccessible::Name), QString());
}

TEST_F(SurfaceCells, TheSelectedOneHasTheKeyboardOfItsSurface) {
    QWidget& widget = *form.Find<QWidget>("surface");
    widget.clearFocus();
    EXPECT_FALSE(Told().child(1)->state().focused);
    EXPECT_EQ(Told().focusChild(), nullptr);

    widget.setFocus();
    EXPECT_TRUE(Told().child(1)->state().focused);
    EXPECT_FALSE(Told().child(0)->state().focused);
    EXPECT_FALSE(Told().state().focused);
    EXPECT_EQ(Told().focusChild(), Told().child(1));

    cells[1].selected = false;
    EXPECT_TRUE(Told().state().focused);
    EXPECT_EQ(Told().focusChild(), &Told());
}

TEST_F(SurfaceCells, ASurfaceMayHaveNone) {
    surface.cells = nullptr;
    EXPECT_EQ(Told().childCount(), 0);
}

}  // namespace
}  // namespace ballhaven::platform
