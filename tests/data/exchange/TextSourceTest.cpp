#include "data/exchange/TextSource.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ballhaven::data {
namespace {

using namespace std::string_literals;

std::string TextOf(const std::string& bytes) {
    std::istringstream stream(bytes);
    TextSource source(stream);
    std::string text;
    for (std::string_view chunk = source.Next(); !chunk.empty(); chunk = source.Next()) {
        text += chunk;
    }
    return text;
}

/// A text of characters below 256 in UTF-16 with its mark.
std::string Utf16(const std::string& text, bool bigEnd) {
    std::string bytes = bigEnd ? "\xFE\xFF" : "\xFF\xFE";
    for (const char each : text) {
        bytes += bigEnd ? std::string{'\0', each} : std::string{each, '\0'};
    }
    return bytes;
}

TEST(TextSource, ATextWithoutAMarkStaysAsItIs) {
    EXPECT_EQ(TextOf("date,1\n"), "date,1\n");
    EXPECT_EQ(TextOf("caf\xE9"), "caf\xE9");
    EXPECT_EQ(TextOf(""), "");
}

TEST(TextSource, TheMarkOfUtf8IsTakenOff) {
    EXPECT_EQ(TextOf("\xEF\xBB\xBF"
                     "date"),
              "date");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF"), "");
    EXPECT_EQ(TextOf("\xEF\xBB"), "\xEF\xBB");
}

TEST(TextSource, Utf16OfEitherEndBecomesUtf8) {
    EXPECT_EQ(TextOf(Utf16("date,1\r\n", false)), "date,1\r\n");
    EXPECT_EQ(TextOf(Utf16("date,1\r\n", true)), "date,1\r\n");
    EXPECT_EQ(TextOf(Utf16("caf\xE9", true).replace(8, 1, 1, '\0')), "caf\xC3\xA9");
    EXPECT_EQ(TextOf("\xFF\xFE\xAC\x20"), "\xE2\x82\xAC");
}

TEST(TextSource, APairOfUnitsIsOneCharacterAndHalfAPairAReplacement) {
    const std::string pair = "\x3D\xD8\x00\xDE"s;
    const std::string letter = "a\0"s;
    EXPECT_EQ(TextOf("\xFF\xFE" + pair + letter), "\xF0\x9F\x98\x80" + "a"s);
    EXPECT_EQ(TextOf("\xFF\xFE" + pair.substr(0, 2) + letter), "\xEF\xBF\xBD" + "a"s);
    EXPECT_EQ(TextOf("\xFF\xFE" + pair.substr(2) + letter), "\xEF\xBF\xBD" + "a"s);
}

TEST(TextSource, HalfACharacterAtTheEndOfTheFileIsDropped) {
    EXPECT_EQ(TextOf(std::string("\xFF\xFE"
                                 "a\0b",
                                 5)),
              "a");
}

TEST(TextSource, TextsLongerThanAChunkComeWhole) {
    std::string longText;
    for (int i = 0; i < 30'000; ++i) {
        longText += std::to_string(i) + ",";
    }
    EXPECT_EQ(TextOf(longText), longText);
    EXPECT_EQ(TextOf(Utf16(longText, false)), longText);
}

TEST(TextSource, AZeroIsNoText) {
    EXPECT_THROW((void)TextOf(std::string("a\0b", 3)), Refusal);
    EXPECT_THROW((void)TextOf(std::string("\xFF\xFE\0\0a\0\0\0", 8)), Refusal) << "UTF-32";
}

}  // namespace
}  // namespace ballhaven::data
