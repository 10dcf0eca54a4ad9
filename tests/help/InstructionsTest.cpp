#include "help/Instructions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven {
namespace {

using Lines = std::vector<std::string_view>;

const std::string topicRule(102, '-');

/// The lines of each topic, its heading first, without those of hyphens.
std::vector<Lines> Topics() {
    std::vector<Lines> topics(1);
    for (const std::string_view line : InstructionLines()) {
        if (line == topicRule) {
            topics.emplace_back();
        } else {
            topics.back().push_back(line);
        }
    }
    return topics;
}

/// The lines of a topic, counted from 1.
Lines Topic(std::size_t number) {
    const std::vector<Lines> topics = Topics();
    return number <= topics.size() ? topics[number - 1] : Lines();
}

/// The lines of a topic that end in a colon, or in one with a remark in brackets behind it, but for its heading.
Lines SubHeadingsOf(const Lines& topic) {
    Lines found;
    for (const std::string_view line : std::span(topic).subspan(1)) {
        const bool hasColon = line.ends_with(':') || line.ends_with(": ");
        if (hasColon || (line.ends_with(')') && line.find(": (") != std::string_view::npos)) {
            found.push_back(line);
        }
    }
    return found;
}

/// The lines of a topic from a sub-heading to the next of its sub-headings.
Lines UnderSubHeading(std::size_t topic, std::string_view from, std::string_view to) {
    const Lines lines = Topic(topic);
    const auto first = std::ranges::find(lines, from);
    return {first, std::find(first, lines.end(), to)};
}

void ExpectTogether(const Lines& lines, const Lines& expected) {
    EXPECT_NE(std::search(lines.begin(), lines.end(), expected.begin(), expected.end()), lines.end())
        << "not together: " << expected.front();
}

TEST(Instructions, TheirTopicsStandInOrderUnderTheirHeadings) {
    Lines headings;
    for (const Lines& topic : Topics()) {
        headings.push_back(topic.front());
    }
    EXPECT_EQ(headings, (Lines{
                            " Main Screen: (Select Game, History Set, Hot Table)",
                            " Main Screen: (Single Play)",
                            " Main Screen: (Historical Log)",
                            " Main Screen: (Color by Number Toolbar)",
                            " [Printer] icon on toolbar(s)",
                            " [Add New Game] icon on main screen toolbar",
                            " [Delete Game] icon on main screen toolbar",
                            " [Edit Game] icon on main screen toolbar",
                            " [Play Slips] icon on main screen toolbar",
                            " [Erase All Play Slips] icon on toolbar(s)",
                            " [Wheel] icon on toolbar(s)",
                            " [Hi-Lite Winners]  'Cherry' icon on toolbar(s)",
                            " [Erase Winner Hi-Lites] 'Erase Cherry' icon on toolbar(s)",
                        }));
}

TEST(Instructions, TheirSubHeadingsAreTheseAndNoOthers) {
    std::vector<Lines> subHeadings;
    for (const Lines& topic : Topics()) {
        subHeadings.push_back(SubHeadingsOf(topic));
    }
    std::vector<Lines> expected(13);
    expected[3 - 1] = {
        " Editing Dates in Historical Log: ",
        " Editing Table Data in Historical Log: (Number games)",
        " Editing Table Data in Historical Log: (Card games)",
        " Adding new records to Historical Log: ",
        " Deleting records from Historical Log: ",
        " Coloring numbers or cards for the selected date:",
        " View Date Ascending: ",
        " View Date Descending: ",
    };
    expected[11 - 1] = {" Wheels:", " Shuffle:"};
    EXPECT_EQ(subHeadings, expected);
}

TEST(Instructions, TheSelectionsAffectWhatIsViewedAndPrinted) {
    ExpectTogether(Topic(1), {
                                 " These selections determine the criteria for viewing and",
                                 " printing data. They affect the Historical Log, as well as Hot",
                                 " Numbers, Pairs etc.. For example, if you select 'Super Lotto',",
                                 " 'Last 20 games', the data shown in the Historical Log and the",
                                 " Hot Numbers table will reflect the last 20 Super Lotto games.",
                                 " These selections also apply to printer data.",
                             });
}

TEST(Instructions, ThePinkButtonColorsADrawing) {
    ExpectTogether(UnderSubHeading(3, " Coloring numbers or cards for the selected date:", " View Date Ascending: "),
                   {
                       " Click on the little pink button located left of the selected date.",
                       " You will see all numbers that match the numbers in this row will",
                       " be colored in both the Historical table, and the Hot table.",
                       " Click on the button again to turn the colors off.",
                   });
}

TEST(Instructions, TheColorToolbarHasAnEraser) {
    ExpectTogether(Topic(4), {
                                 " Clear number Hi-lites: [Erase Color] button on Color Toolbar.",
                                 " Clears the hi-lite colors in the historical and hot tables.",
                             });
}

TEST(Instructions, DataAndPlaySlipsCanBePrinted) {
    ExpectTogether(Topic(5), {
                                 " From here you can choose to print Historical data, hot numbers,",
                                 " pairs, repeaters and no-hitters for the selected historical set.",
                                 " You can also print Play Slip results on standard paper.",
                             });
}

TEST(Instructions, ADeletionAsksForCaution) {
    ExpectTogether(Topic(7), {
                                 " From here Delete the current game and all related data.",
                                 " Use with Caution.",
                             });
}

TEST(Instructions, WheelsPromiseTheirPlays) {
    const Lines wheels = UnderSubHeading(11, " Wheels:", " Shuffle:");
    ExpectTogether(wheels, {
                               " A Full Wheel takes the numbers you select and generates",
                               " a set of play slips that cover every possible combination.",
                               " In some cases, this could exceed the program capability of",
                               " 5000 plays. If this happens, the wheel will stop at 5000.",
                           });
    ExpectTogether(wheels, {
                               " A Partial Wheel picks up every other number or card within a full",
                               " wheel. When it reaches the last pick in the shuffle grid, it starts over",
                               " again incrementing it's start position.",
                               " A partial wheel produces the number of plays entered in the",
                               " 'Total Plays' box.  However, if a complete wheel is accomplished",
                               " before the specified 'Total Plays', the wheel will stop.",
                               " When selecting numbers for a Partial Wheel, it is important to",
                               " select the numbers in the order of favorite to least favorite,",
                               " since the favorite number combinations are first in the wheel.",
                           });
}

TEST(Instructions, ShufflePromisesItsPlays) {
    ExpectTogether(UnderSubHeading(11, " Shuffle:", "no further sub-heading"),
                   {
                       " Shuffle takes your favorite numbers and shuffles them randomly,",
                       " producing the number of plays specified in the 'Total Plays' box.",
                   });
}

TEST(Instructions, WinnersOfTheCurrentRecordAreHiLited) {
    ExpectTogether(Topic(12), {
                                  " Scans Play Slips and checks for winners matching the historical",
                                  " record currently selected.  Hi-Lites play numbers or cards in red",
                                  " or cards in red on the play slips.",
                              });
}

// Not a bug: HELP-WORDS-1 in docs/not-bugs.md.
TEST(QuirkHelpWords1, ItsStartPositionEtcAndCardsInRedTwiceReadSo) {
    ExpectTogether(Topic(1), {" Numbers, Pairs etc.. For example, if you select 'Super Lotto',"});
    ExpectTogether(Topic(11), {" again incrementing it's start position."});
    ExpectTogether(Topic(12), {
                                  " record currently selected.  Hi-Lites play numbers or cards in red",
                                  " or cards in red on the play slips.",
                              });
}

TEST(Instructions, EveryLineBeginsWithOneBlankButRowsOfHyphensAtTheLeftEdge) {
    for (const std::string_view line : InstructionLines()) {
        if (!line.empty() && line != topicRule) {
            EXPECT_TRUE(line.size() > 1 && line[0] == ' ' && line[1] != ' ') << line;
        }
    }
}

TEST(Instructions, AnEmptyLineEndsEveryBlock) {
    std::string_view before;
    for (const std::string_view line : InstructionLines()) {
        EXPECT_FALSE(line.empty() && before.empty()) << "two empty lines";
        EXPECT_FALSE(line == topicRule && !before.empty()) << "a topic ends without one";
        before = line;
    }
    EXPECT_EQ(before, "");
}

TEST(Instructions, AreWrittenInPlainCharacters) {
    for (const std::string_view line : InstructionLines()) {
        EXPECT_TRUE(std::ranges::all_of(line, [](char character) { return character >= ' ' && character <= '~'; }))
            << line;
    }
}

}  // namespace
}  // namespace ballhaven
