#include "platform/qt/widgets/BuiltPicture.h"

#include <QImage>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(BuiltPicture, IsThereInFourScales) {
    EXPECT_EQ(BuiltPicture("print", "1").size(), QSize(32, 32));
    EXPECT_EQ(BuiltPicture("print", "1.5").size(), QSize(48, 48));
    EXPECT_EQ(BuiltPicture("print", "2").size(), QSize(64, 64));
    EXPECT_EQ(BuiltPicture("print", "3").size(), QSize(96, 96));
}

TEST(BuiltPicture, ShowsItsColoursAndWhatIsBehindIt) {
    const QImage next = BuiltPicture("next", "1").toImage();
    EXPECT_EQ(next.pixelColor(8, 8), QColor(0x2E, 0x6C, 0xA8));
    EXPECT_EQ(next.pixelColor(0, 0).alpha(), 0);
}

TEST(BuiltPicture, IsNullWhereThereIsNoneOfTheNameOrTheScale) {
    EXPECT_TRUE(BuiltPicture("no such picture", "1").isNull());
    EXPECT_TRUE(BuiltPicture("print", "4").isNull());
}

}  // namespace
}  // namespace ballhaven::platform
