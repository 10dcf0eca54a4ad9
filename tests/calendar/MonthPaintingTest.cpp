#include "calendar/MonthPainting.h"

#include "calendar/MonthLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ballhaven {
namespace {

using platform::Color;
using platform::PixelPoint;
using std::chrono::year;
using Lines = std::vector<std::string>;

constexpr Color darkBlue{0, 0, 128};

/// Keeps every pixel and every text that is drawn. Where nothing was drawn the colour is the button face.
class Paper : public platform::Canvas {
  public:
    struct Print {
        PixelPoint corner;
        std::string text;
        Color color;
    };

    void DrawLine(PixelPoint from, PixelPoint to, const Color& color) override {
        const int stepX = std::clamp(to.x - from.x, -1, 1);
        const int stepY = std::clamp(to.y - from.y, -1, 1);
        EXPECT_TRUE(stepX == 0 || stepY == 0) << "a slanted line";
        for (PixelPoint each = from; each != to; each = {each.x + stepX, each.y + stepY}) {
            DrawPixel(each, color);
        }
    }
    void FillBox(PixelPoint corner, int width, int height, const Color& color) override {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                DrawPixel({corner.x + x, corner.y + y}, color);
            }
        }
    }
    void DrawPixel(PixelPoint place, const Color& color) override { pixels[{place.x, place.y}] = color; }
    void DrawText(PixelPoint corner, std::string_view text, const Color& color) override {
        prints.push_back({corner, std::string(text), color});
    }

    [[nodiscard]] Color At(int x, int y) const {
        const auto found = pixels.find({x, y});
        return found == pixels.end() ? platform::buttonFaceColor : found->second;
    }

    /// An area as a person sees it: "w" white, "k" black, "s" button shadow, "b" dark blue, "." the ground.
    [[nodiscard]] Lines Area(int left, int top, int width, int height) const {
        Lines lines;
        for (int y = top; y < top + height; ++y) {
            std::string line;
            for (int x = left; x < left + width; ++x) {
                line += Letter(At(x, y));
            }
            lines.push_back(line);
        }
        return lines;
    }

    [[nodiscard]] const Print& PrintOf(const std::string& text, int skip = 0) const {
        for (const Print& print : prints) {
            if (print.text == text && skip-- == 0) {
                return print;
            }
        }
        ADD_FAILURE() << "not printed: " << text;
        return prints.front();
    }

    std::vector<Print> prints;

  private:
    static char Letter(const Color& color) {
        const std::pair<Color, char> letters[] = {
            {platform::white, 'w'}, {platform::black, 'k'}, {platform::buttonShadowColor, 's'}, {darkBlue, 'b'}};
        for (const auto& [drawn, letter] : letters) {
            if (drawn == color) {
                return letter;
            }
        }
        return color == platform::buttonFaceColor ? '.' : '?';
    }

    std::map<std::pair<int, int>, Color> pixels;
};

// Texts of 7 by 15 pixels a character: cells are 21 wide, rows 16 high, the calendar 168 wide. The day is 14 February
// 2004.
class MonthPainting : public testing::Test {
  protected:
    void Paint(std::chrono::year_month_day date, const char* title = "") {
        MonthPicture picture;
        picture.measures = MeasuresOf(15, 21);
        picture.month = MonthOf(date, year{2004} / 2 / 14);
        picture.title = title;
        picture.columnLetters = {"", "M", "T", "W", "T", "F", "S", "S"};
        picture.textWidth = [](std::string_view text) { return 7 * static_cast<int>(text.size()); };
        PaintMonth(paper, picture);
    }

    Paper paper;
};

TEST_F(MonthPainting, TheLeftButtonIsRaisedAndPointsBack) {
    Paint(year{2004} / 2 / 3);
    EXPECT_EQ(paper.Area(1, 1, 14, 14), (Lines{
                                            "..............",
                                            ".wwwwwwwwwwwk.",
                                            ".w.........sk.",
                                            ".w.........sk.",
                                            ".w.....k...sk.",
                                            ".w....kk...sk.",
                                            ".w...kkk...sk.",
                                            ".w....kk...sk.",
                                            ".w.....k...sk.",
                                            ".w.........sk.",
                                            ".w.........sk.",
                                            ".wssssssssssk.",
                                            ".kkkkkkkkkkkk.",
                                            "..............",
                                        }));
}

TEST_F(MonthPainting, TheRightButtonIsRaisedAndPointsOn) {
    Paint(year{2004} / 2 / 3);
    EXPECT_EQ(paper.Area(153, 1, 14, 14), (Lines{
                                              "..............",
                                              ".wwwwwwwwwwwk.",
                                              ".w.........sk.",
                                              ".w.........sk.",
                                              ".w...k.....sk.",
                                              ".w...kk....sk.",
                                              ".w...kkk...sk.",
                                              ".w...kk....sk.",
                                              ".w...k.....sk.",
                                              ".w.........sk.",
                                              ".w.........sk.",
                                              ".wssssssssssk.",
                                              ".kkkkkkkkkkkk.",
                                              "..............",
                                          }));
}

TEST_F(MonthPainting, TheTitleStandsInTheMiddle) {
    Paint(year{2004} / 2 / 3, "February 2004");
    const Paper::Print& title = paper.PrintOf("February 2004");
    EXPECT_EQ(title.corner, (PixelPoint{84 - 45, 0})) << "168 / 2 less 91 / 2";
    EXPECT_EQ(title.color, platform::black);
}

TEST_F(MonthPainting, TheLettersEndWhereTheirColumnsOfNumbersEnd) {
    Paint(year{2004} / 2 / 3);
    EXPECT_EQ(paper.PrintOf("M").corner, (PixelPoint{21 + 5 - 7, 16}));
    EXPECT_EQ(paper.PrintOf("S", 1).corner, (PixelPoint{7 * 21 + 5 - 7, 16}));
    EXPECT_EQ(paper.PrintOf("23").corner, (PixelPoint{21 + 5 - 14, 6 * 16})) << "a Monday in row 5";
    EXPECT_EQ(paper.PrintOf("8").corner, (PixelPoint{7 * 21 + 5 - 7, 3 * 16})) << "a Sunday in row 2";
}

TEST_F(MonthPainting, ARuleStandsBelowTheLetters) {
    Paint(year{2004} / 2 / 3);
    EXPECT_EQ(paper.At(6, 29), platform::buttonShadowColor);
    EXPECT_EQ(paper.At(161, 29), platform::buttonShadowColor);
    EXPECT_EQ(paper.At(6, 30), platform::white);
    EXPECT_EQ(paper.At(161, 30), platform::white);
    EXPECT_EQ(paper.Area(5, 29, 1, 2), (Lines{".", "."}));
    EXPECT_EQ(paper.Area(162, 29, 1, 2), (Lines{".", "."}));
}

TEST_F(MonthPainting, DaysOfTheMonthAreBlackThoseBesideItGreyAndTheSelectedOneIsWhite) {
    Paint(year{2004} / 2 / 3);
    EXPECT_EQ(paper.PrintOf("26").color, (Color{128, 128, 128})) << "of January";
    EXPECT_EQ(paper.PrintOf("26", 1).color, platform::black);
    EXPECT_EQ(paper.PrintOf("3").color, platform::white);
    EXPECT_EQ(paper.PrintOf("3", 1).color, (Color{128, 128, 128})) << "of March";
    EXPECT_EQ(std::ranges::count_if(paper.prints, [](const Paper::Print& print) { return print.text == "3"; }), 2);
}

TEST_F(MonthPainting, TheSelectedDayStandsOnABlueBox) {
    Paint(year{2004} / 2 / 3);
    const std::string box(20, 'b');
    Lines expected(14, "." + box + ".");  // from (27, 48), 20 wide and 14 high
    expected.insert(expected.begin(), std::string(22, '.'));
    expected.emplace_back(22, '.');
    EXPECT_EQ(paper.Area(26, 47, 22, 16), expected);
}

TEST_F(MonthPainting, TodayHasASunkenFrame) {
    Paint(year{2004} / 2 / 3);  // the 14th is cell 20, row 3, column 6
    Lines expected(13, "s" + std::string(20, '.') + "w");
    expected.insert(expected.begin(), std::string(21, 's') + "w");
    expected.push_back("s" + std::string(21, 'w'));
    EXPECT_EQ(paper.Area(5 * 21 + 5, 4 * 16, 22, 15).front(), expected.front());
    EXPECT_EQ(paper.Area(5 * 21 + 5, 4 * 16 + 1, 22, 13), Lines(13, expected[1]));
    EXPECT_EQ(paper.Area(5 * 21 + 5, 4 * 16 + 14, 22, 1).front(), expected.back());
}

TEST_F(MonthPainting, TodaysFrameStandsOverTheBlueBoxWhereTodayIsSelected) {
    Paint(year{2004} / 2 / 14);
    EXPECT_EQ(paper.Area(5 * 21 + 5, 4 * 16, 22, 1).front(), std::string(21, 's') + "w");
    EXPECT_EQ(paper.Area(5 * 21 + 5, 4 * 16 + 1, 22, 13), Lines(13, "s" + std::string(20, 'b') + "w"));
    EXPECT_EQ(paper.Area(5 * 21 + 5, 4 * 16 + 14, 22, 1).front(), "s" + std::string(21, 'w'));
    EXPECT_EQ(paper.PrintOf("14").color, platform::white);
}

TEST_F(MonthPainting, TodayOfAnotherMonthHasNoFrame) {
    Paint(year{2004} / 3 / 20);
    for (int row = 1; row <= 6; ++row) {
        EXPECT_EQ(paper.Area(5, (row + 1) * 16, 1, 15), Lines(15, ".")) << row;
    }
}

}  // namespace
}  // namespace ballhaven
