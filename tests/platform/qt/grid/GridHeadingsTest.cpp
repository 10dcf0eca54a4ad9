#include "platform/qt/grid/GridHeadings.h"

#include "support/qt/GridOnScreen.h"

#include <QImage>
#include <QTableView>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

/// A log whose picks have the headings "1" to "10".
class GridHeadingsOnScreen : public testing::Test, protected support::LogOnScreen {
  protected:
    GridHeadingsOnScreen() {
        for (int pick = 1; pick <= 10; ++pick) {
            grid.Column(pick).heading = std::to_string(pick);
        }
        Show();
    }

    [[nodiscard]] QHeaderView& Headings() const { return *PaneView(1)->horizontalHeader(); }

    /// The headings of the picks as they are drawn, without what lies outside them.
    [[nodiscard]] QImage Drawn() const { return Headings().viewport()->grab().toImage(); }

    /// The colour at the right edge of the first pick's heading.
    [[nodiscard]] QColor FirstEdge() const { return Drawn().pixelColor(Headings().sectionSize(0) - 1, 7); }

    const QColor face = QPalette().color(QPalette::Button);
    const QColor line = QPalette().color(QPalette::Mid);
};

TEST_F(GridHeadingsOnScreen, AreFifteenPixelsHighWhateverTheirTextsSay) {
    EXPECT_EQ(Headings().height(), 15);
    grid.Column(1).heading = "a\nb\nc";
    EXPECT_EQ(Headings().height(), 15);
}

TEST_F(GridHeadingsOnScreen, AreHiddenWhereTheGridShowsNone) {
    grid.showsHeadings = false;
    EXPECT_FALSE(Headings().isVisible());
}

TEST_F(GridHeadingsOnScreen, EachColumnHasItsOwn) {
    EXPECT_EQ(FirstEdge(), line);
    const QImage withDigit = Drawn();
    grid.Column(2).heading = "two";
    const QImage withWord = Drawn();
    QRect changed;
    for (int x = 0; x < withDigit.width(); ++x) {
        for (int y = 0; y < withDigit.height(); ++y) {
            changed |= withDigit.pixel(x, y) == withWord.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    const QRect second(Headings().sectionViewportPosition(1), 0, Headings().sectionSize(1), 15);
    EXPECT_TRUE(second.contains(changed));
    EXPECT_FALSE(changed.isEmpty());
}

TEST_F(GridHeadingsOnScreen, TheCaptionOfAPaneStandsOverAllItsColumns) {
    grid.Pane(1).caption = " ";
    EXPECT_EQ(FirstEdge(), face);
}

}  // namespace
}  // namespace ballhaven::platform
