#include "data/folder/ShownText.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

TEST(ShownText, Utf8StaysAndAnythingElseIsWindows1252) {
    EXPECT_EQ(ShownText("\xC3\xA9t\xC3\xA9"), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(ShownText("\xE9t\xE9"), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(ShownText("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(ShownText("\xC3"), "\xC3\x83");
}

TEST(ShownText, NothingInItMovesTheCursorOfATerminal) {
    EXPECT_EQ(ShownText("a\x1B[2Jb\n\x7F"), "a?[2Jb??");
    EXPECT_EQ(ShownText("\xC2\x9B"
                        "2J"),
              "?2J");
}

TEST(Quoted, ALongFieldIsCut) {
    EXPECT_EQ(Quoted("31.2.2011"), "\"31.2.2011\"");
    EXPECT_EQ(Quoted(std::string(40, 'x')), "\"" + std::string(40, 'x') + "\"");
    EXPECT_EQ(Quoted(std::string(41, 'x')), "\"" + std::string(40, 'x') + "...\"");
}

TEST(Quoted, ACharacterIsNotCut) {
    EXPECT_EQ(Quoted(std::string(39, 'x') + "\xC3\xA9"), "\"" + std::string(39, 'x') + "...\"");
    EXPECT_EQ(Quoted(std::string(38, 'x') + "\xE2\x82\xAC" + "y"), "\"" + std::string(38, 'x') + "...\"");
}

}  // namespace
}  // namespace ballhaven::data
