#include "screen/CardLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

const CardHit nothing{};
const CardHit closeBox{CardArea::CloseBox};

CardHit Card(const std::string& text) {
    return {CardArea::Cards, text};
}

const std::vector<std::string> ranks = {"A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"};
constexpr char suits[] = {'h', 'c', 'd', 's'};

TEST(LogCardAt, TheSuitsChangeAtTheirTwips) {
    EXPECT_EQ(LogCardAt(404, 540), Card("Ah"));
    EXPECT_EQ(LogCardAt(405, 540), Card("Ac"));
    EXPECT_EQ(LogCardAt(644, 540), Card("Ac"));
    EXPECT_EQ(LogCardAt(645, 540), Card("Ad"));
    EXPECT_EQ(LogCardAt(884, 540), Card("Ad"));
    EXPECT_EQ(LogCardAt(885, 540), Card("As"));
}

TEST(LogCardAt, TheRanksChangeAtTheirTwips) {
    EXPECT_EQ(LogCardAt(165, 540), Card("Ah"));
    EXPECT_EQ(LogCardAt(165, 719), Card("Ah"));
    EXPECT_EQ(LogCardAt(165, 720), Card("2h"));
    EXPECT_EQ(LogCardAt(165, 2699), Card("Qh"));
    EXPECT_EQ(LogCardAt(165, 2700), Card("Kh"));
}

TEST(LogCardAt, TheEdgesOfTheCardsBelongToThem) {
    EXPECT_EQ(LogCardAt(165, 540), Card("Ah"));
    EXPECT_EQ(LogCardAt(1095, 540), Card("As"));
    EXPECT_EQ(LogCardAt(165, 2865), Card("Kh"));
    EXPECT_EQ(LogCardAt(1095, 2865), Card("Ks"));
    for (const auto& [x, y] : std::vector<std::pair<double, double>>{
             {164, 540}, {1096, 540}, {165, 539}, {165, 2866}, {1095.5, 600}, {600, 2865.5}}) {
        EXPECT_EQ(LogCardAt(x, y), nothing) << x << ", " << y;
    }
}

TEST(LogCardAt, TheEdgesOfTheCloseBoxBelongToIt) {
    for (const auto& [x, y] :
         std::vector<std::pair<double, double>>{{1050, 45}, {1215, 45}, {1050, 210}, {1215, 210}}) {
        EXPECT_EQ(LogCardAt(x, y), closeBox) << x << ", " << y;
    }
    for (const auto& [x, y] : std::vector<std::pair<double, double>>{{1049, 45}, {1216, 45}, {1050, 44}, {1050, 211}}) {
        EXPECT_EQ(LogCardAt(x, y), nothing) << x << ", " << y;
    }
}

TEST(LogCardAt, APlaceBetweenTwoTwipsCountsAsTheNearerOneForTheRank) {
    EXPECT_EQ(LogCardAt(165, 719.4), Card("Ah"));
    EXPECT_EQ(LogCardAt(165, 719.5), Card("2h"));
    EXPECT_EQ(LogCardAt(404.9, 720), Card("2h"));
}

// Each of the 52 cards as it is drawn: white fields of 15 by 11 pixels, with a line of one pixel behind each of them.
TEST(LogCardAt, EveryPixelOfADrawnCardIsThatCard) {
    for (int suit = 0; suit < 4; ++suit) {
        for (int rank = 0; rank < 13; ++rank) {
            const std::string card = ranks[static_cast<std::size_t>(rank)] + suits[suit];
            for (const int x : {11 + 16 * suit, 25 + 16 * suit}) {
                for (const int y : {36 + 12 * rank, 46 + 12 * rank}) {
                    EXPECT_EQ(LogCardAt(x * 15, y * 15), Card(card)) << x << ", " << y;
                }
            }
        }
    }
}

TEST(HiLiteCardAt, TheRanksChangeAtTheirTwips) {
    EXPECT_EQ(HiLiteCardAt(420, 330), Card("Ah"));
    EXPECT_EQ(HiLiteCardAt(659, 330), Card("Ah"));
    EXPECT_EQ(HiLiteCardAt(660, 330), Card("2h"));
    EXPECT_EQ(HiLiteCardAt(3299, 330), Card("Qh"));
    EXPECT_EQ(HiLiteCardAt(3300, 330), Card("Kh"));
}

TEST(HiLiteCardAt, TheSuitsChangeAtTheirTwips) {
    EXPECT_EQ(HiLiteCardAt(420, 539), Card("Ah"));
    EXPECT_EQ(HiLiteCardAt(420, 540), Card("Ac"));
    EXPECT_EQ(HiLiteCardAt(420, 734), Card("Ac"));
    EXPECT_EQ(HiLiteCardAt(420, 735), Card("Ad"));
    EXPECT_EQ(HiLiteCardAt(420, 959), Card("Ad"));
    EXPECT_EQ(HiLiteCardAt(420, 960), Card("As"));
}

TEST(HiLiteCardAt, TheEdgesOfTheCardsBelongToThem) {
    EXPECT_EQ(HiLiteCardAt(3510, 330), Card("Kh"));
    EXPECT_EQ(HiLiteCardAt(420, 1140), Card("As"));
    EXPECT_EQ(HiLiteCardAt(3510, 1140), Card("Ks"));
    for (const auto& [x, y] :
         std::vector<std::pair<double, double>>{{419, 330}, {3511, 330}, {420, 329}, {420, 1141}, {200, 600}}) {
        EXPECT_EQ(HiLiteCardAt(x, y), nothing) << x << ", " << y;
    }
}

TEST(HiLiteCardAt, TheEdgesOfTheCloseBoxBelongToIt) {
    for (const auto& [x, y] :
         std::vector<std::pair<double, double>>{{3450, 75}, {3600, 75}, {3450, 225}, {3600, 225}}) {
        EXPECT_EQ(HiLiteCardAt(x, y), closeBox) << x << ", " << y;
    }
    for (const auto& [x, y] : std::vector<std::pair<double, double>>{{3449, 75}, {3601, 75}, {3450, 74}, {3450, 226}}) {
        EXPECT_EQ(HiLiteCardAt(x, y), nothing) << x << ", " << y;
    }
}

// The bands of the suits are a little uneven: a click on the line between two of them may count for either.
TEST(HiLiteCardAt, EveryPixelOfADrawnCardIsThatCard) {
    for (int suit = 0; suit < 4; ++suit) {
        for (int rank = 0; rank < 13; ++rank) {
            const std::string card = ranks[static_cast<std::size_t>(rank)] + suits[suit];
            const int right = std::min(42 + 16 * rank, 234);
            for (const int x : {28 + 16 * rank, right}) {
                for (const int y : {22 + 14 * suit, 34 + 14 * suit}) {
                    if (y * 15 <= 1140) {
                        EXPECT_EQ(HiLiteCardAt(x * 15, y * 15), Card(card)) << x << ", " << y;
                    }
                }
            }
        }
    }
}

}  // namespace
}  // namespace ballhaven
