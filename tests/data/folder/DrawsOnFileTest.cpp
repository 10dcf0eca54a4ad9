#include "data/folder/DrawsOnFile.h"

#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

std::string Padded(std::string text) {
    text.resize(64, ' ');
    return text;
}

const std::string fiveDigitsHeader = "10-26-2002" + std::string(53, ' ') + "M";

TEST(DrawsOnFileTest, RowsWithADateAreDraws) {
    const DrawsOnFile file = DrawsOf(Padded("10-26-2002") + Padded("9999 1  22 ") + Padded("") + Padded("12   7 "), 3);
    EXPECT_EQ(file.digits, DateDigits::Four);
    EXPECT_EQ(file.draws, (std::vector<DrawOnFile>{{9999, {1, 22, -1}}, {12, {7, -1, -1}}}));
}

TEST(DrawsOnFileTest, AFileIsReadByItsOwnMark) {
    const DrawsOnFile file = DrawsOf(fiveDigitsHeader + Padded("156661  22 "), 2);
    EXPECT_EQ(file.digits, DateDigits::Five);
    EXPECT_EQ(file.draws, (std::vector<DrawOnFile>{{15666, {1, 22}}}));
}

TEST(DrawsOnFileTest, ARecordThatTheEndCutsIsReadAsFarAsItGoes) {
    EXPECT_EQ(DrawsOf(Padded("10-26-2002") + "9999 1  2", 2).draws, (std::vector<DrawOnFile>{{9999, {1, 2}}}));
    EXPECT_TRUE(DrawsOf("10-26", 2).draws.empty());
    EXPECT_TRUE(DrawsOf("", 2).draws.empty());
}

TEST(DrawsOnFileTest, AContentHasEveryRowAndKeepsTheOldHeader) {
    const DrawsOnFile file{DateDigits::Four, {{9999, {1, 22}}, {12, {7, -1}}}};
    const std::string content = ContentOf(file, Padded("10-26-2002 AB") + std::string(1000UL * 64, ' '));
    EXPECT_EQ(content.size(), 1001U * 64);
    EXPECT_EQ(content.substr(0, 4 * 64),
              Padded("10-26-2002 AB") + Padded("9999  1 22") + Padded("12    7") + Padded(""));
    EXPECT_EQ(DrawsOf(content, 2), file);
}

TEST(DrawsOnFileTest, ANewFileGetsTheHeaderOfItsForm) {
    EXPECT_EQ(ContentOf({}, std::nullopt).substr(0, 64), Padded("10-26-2002"));
    EXPECT_EQ(ContentOf({DateDigits::Five, {}}, std::nullopt).substr(0, 64), fiveDigitsHeader);
}

TEST(DrawsOnFileTest, AnEmptyContentAndOneOfTheOlderFormGetTheStamp) {
    EXPECT_EQ(ContentOf({}, "").substr(0, 64), Padded("10-26-2002"));
    EXPECT_EQ(ContentOf({}, Padded("AB") + std::string(100UL * 64, ' ')).substr(0, 64), Padded("10-26-2002"));
    EXPECT_EQ(ContentOf({}, Padded("AB") + std::string(101UL * 64, ' ')).substr(0, 64), Padded("AB"));
}

TEST(DrawsOnFileTest, NoMoreThanAThousandDrawsAreInAContent) {
    DrawsOnFile file;
    for (std::int16_t date = 1; date <= 1001; ++date) {
        file.draws.push_back({date, {1}});
    }
    const std::string content = ContentOf(file, std::nullopt);
    EXPECT_EQ(content.size(), 1001U * 64);
    EXPECT_EQ(DrawsOf(content, 1).draws.back().date, 1000);
}

TEST(DrawsOnFileTest, AGameWithoutAFileHasNoDraws) {
    const support::TemporaryDirectory directory;
    GameOnFile game;
    game.slot = 7;
    game.rules.mainPickCount = 2;
    EXPECT_TRUE(ReadDraws(directory.Path(), game).draws.empty());
    directory.Write("GAME07.CDB", Padded("10-26-2002") + Padded("30   4   5 "));
    EXPECT_EQ(ReadDraws(directory.Path(), game).draws, (std::vector<DrawOnFile>{{30, {4, 5}}}));
}

TEST(DrawsOnFileTest, WhatIsNoPickOfADrawIsCounted) {
    const std::string rows = Padded("10-26-2002") + Padded("") + Padded("1000  1  2") + Padded("x001  1  2") +
                             Padded("1002  1  2  3") + Padded("1003  1  2                       0") + Padded("     7");
    EXPECT_EQ(BesideDrawsOf(rows, 2), (BesideDraws{.recordsWithoutDate = 2, .drawsWithMorePicks = 2}));
    EXPECT_EQ(BesideDrawsOf(rows, 10), (BesideDraws{.recordsWithoutDate = 2, .drawsWithMorePicks = 0}));
    EXPECT_EQ(BesideDrawsOf("", 2), BesideDraws{});
}

TEST(DrawsOnFileTest, InFiveDigitsEachDateStaysTheOneThatItWasReadAs) {
    std::string content = "10-26-2002" + std::string(54, ' ') + "70013 1  2" + std::string(54, ' ') + "7001";
    const std::string marked = WithFiveDigitDates(content);
    EXPECT_EQ(marked, content.replace(63, 1, "M").replace(64 + 4, 1, " "));
    EXPECT_EQ(DrawsOf(marked, 2).draws.at(0), (DrawOnFile{7001, {1, 2}}));
}

}  // namespace
}  // namespace ballhaven::data
