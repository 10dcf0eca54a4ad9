#include "platform/qt/widgets/Conversions.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(Conversions, TextOfTheProgramShowsItsOwnCharacters) {
    EXPECT_EQ(ToQString("\x80 \xE4 &"), QString::fromUtf8("\xE2\x82\xAC \xC3\xA4 &"));
}

TEST(Conversions, ATypedCharacterWithoutAByteBecomesAQuestionMark) {
    EXPECT_EQ(FromQString(QString::fromUtf8("7\xC5\x82")), "7?");
}

TEST(Conversions, FifteenTwipsAreAPixelAndOddLengthsGoToTheNearest) {
    EXPECT_EQ(ToPixels(12015), 801);
    EXPECT_EQ(ToPixels(280), 19);
    EXPECT_EQ(ToPixels(7), 0);
    EXPECT_EQ(ToPixels(8), 1);
    EXPECT_EQ(ToPixels(-15), -1);
    EXPECT_EQ(ToTwips(538), 8070);
}

TEST(Conversions, EdgesThatMeetInTwipsMeetInPixels) {
    const QRect upper = ToQRect({0, 0, 100, 187});
    const QRect lower = ToQRect({0, 187, 100, 187});

    EXPECT_EQ(upper.y() + upper.height(), lower.y());
}

TEST(Conversions, ASystemColourIsThePalettesAndAFixedOneItsOwn) {
    EXPECT_EQ(ToQColor(windowColor), QColor(255, 255, 255));
    EXPECT_EQ(ToQColor(buttonFaceColor), QColor(235, 232, 225));
    EXPECT_EQ(ToQColor(Color(0, 128, 128)), QColor(0, 128, 128));
}

}  // namespace
}  // namespace ballhaven::platform
