#include "platform/qt/printing/PrinterFonts.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(PrinterFonts, AFontThatTheProgramAsksForIsTheOneOfTheSameMeasuresWhereItIsMissing) {
    const std::optional<QFont> arial = QtFontOf({"Arial", 12, false, false, false});
    const std::optional<QFont> times = QtFontOf({"Times New Roman", 10, false, false, false});
    ASSERT_TRUE(arial && times);
    const QStringList sans = {"Arial", "Liberation Sans"};
    const QStringList serif = {"Times New Roman", "Liberation Serif"};
    EXPECT_TRUE(sans.contains(QFontInfo(*arial).family())) << QFontInfo(*arial).family().toStdString();
    EXPECT_TRUE(serif.contains(QFontInfo(*times).family())) << QFontInfo(*times).family().toStdString();
}

TEST(PrinterFonts, AFontThatIsNotInstalledIsNone) {
    EXPECT_FALSE(QtFontOf({"Haven Display Nine", 12, false, false, false}));
}

TEST(PrinterFonts, TheEmptyNameIsTheFontOfTheWindows) {
    const std::optional<QFont> font = QtFontOf({"", 12, false, false, false});
    ASSERT_TRUE(font);
    EXPECT_EQ(font->families(), QGuiApplication::font().families());
    EXPECT_EQ(font->pointSizeF(), 12);
}

TEST(PrinterFonts, SizeAndStylesAreTheOnesThatAreAskedFor) {
    const std::optional<QFont> loud = QtFontOf({"Arial", 9.5, true, true, true});
    ASSERT_TRUE(loud);
    EXPECT_EQ(loud->pointSizeF(), 9.5);
    EXPECT_TRUE(loud->bold() && loud->italic() && loud->underline());
    const std::optional<QFont> plain = QtFontOf({"Arial", 12, false, false, false});
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->bold() || plain->italic() || plain->underline());
}

}  // namespace
}  // namespace ballhaven::platform
