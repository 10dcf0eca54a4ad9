#include "platform/qt/widgets/ToldCells.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

/// A cell that counts how many of its kind there are.
class CountedCell final : public ToldCell {
  public:
    explicit CountedCell(int cellNumber) : number(cellNumber) { ++living; }
    ~CountedCell() override { --living; }

    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QAccessibleInterface* parent() const override { return nullptr; }
    [[nodiscard]] QString text(QAccessible::Text) const override { return QString::number(number); }
    [[nodiscard]] QRect rect() const override { return {}; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
    [[nodiscard]] int Number() const override { return number; }

    inline static int living = 0;

  private:
    int number;
};

TEST(ToldCells, AreMadeOnceAndGoWithTheirParent) {
    {
        ToldCells cells;
        QAccessibleInterface* const third = cells.At(3, [] { return new CountedCell(3); });
        EXPECT_EQ(cells.At(3, [] { return new CountedCell(3); }), third);
        EXPECT_NE(cells.At(4, [] { return new CountedCell(4); }), third);
        EXPECT_EQ(CountedCell::living, 2);
        EXPECT_EQ(ToldCells::NumberOf(third), 3);
    }
    EXPECT_EQ(CountedCell::living, 0);
}

TEST(ToldCells, WhatIsNoCellHasNoNumber) {
    EXPECT_EQ(ToldCells::NumberOf(nullptr), -1);
}

}  // namespace
}  // namespace ballhaven::platform
