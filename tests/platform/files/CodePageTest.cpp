#include "platform/files/CodePage.h"

#include <gtest/gtest.h>

#include <set>

namespace ballhaven::platform {
namespace {

TEST(CodePage, EveryByteComesBackFromItsCharacter) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(FromUtf16(ToUtf16(text)), text) << "byte " << byte;
    }
}

TEST(CodePage, NoTwoBytesShareACharacter) {
    std::set<char16_t> characters;
    for (int byte = 0; byte < 256; ++byte) {
        characters.insert(CharacterOfByte(static_cast<unsigned char>(byte)));
    }
    EXPECT_EQ(characters.size(), 256U);
}

TEST(CodePage, TheEuroSignTheDashesAndTheUmlautsAreWhereTheyBelong) {
    EXPECT_EQ(ToUtf16("\x80 \x96 \x97 \xE4 \x9F"), u"\u20AC \u2013 \u2014 \u00E4 \u0178");
    EXPECT_EQ(FromUtf16(u"\u20AC \u2013 \u2014 \u00E4 \u0178"), "\x80 \x96 \x97 \xE4 \x9F");
}

TEST(CodePage, Utf8HasOneToFourBytesForACharacter) {
    std::string text;
    for (const char32_t character : {U'a', U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uFFFD', U'\U0001F600'}) {
        AppendUtf8(text, character);
    }
    EXPECT_EQ(text, "a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8("a\x80\xE4"), "a\xE2\x82\xAC\xC3\xA4");
}

TEST(CodePage, ACharacterWithoutAByteBecomesAQuestionMark) {
    EXPECT_EQ(FromUtf16(u"a\u0142b\u4E2Dc"), "a?b?c");
}

TEST(CodePage, ACharacterOfTwoUnitsBecomesOneQuestionMark) {
    EXPECT_EQ(FromUtf16(u"x\U0001F600y"), "x?y");
}

TEST(CodePage, TheCharactersBehindTheOwnBytesHaveNoByteOfTheSameNumber) {
    EXPECT_EQ(FromUtf16(u"\x80"), "?");
    EXPECT_EQ(FromUtf16(u"\x9F"), "?");
}

TEST(CodePageTest, TextBecomesUtf8) {
    EXPECT_EQ(ToUtf8("5 \x80, K\xF6nig"), "5 \xE2\x82\xAC, K\xC3\xB6nig");
}

}  // namespace
}  // namespace ballhaven::platform
