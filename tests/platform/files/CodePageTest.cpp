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
