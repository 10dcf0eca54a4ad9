#include "help/HelpText.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

TEST(HelpText, TopicZeroIsTheInstructions) {
    const HelpText help = HelpOf(0);
    EXPECT_EQ(help.heading, "Ballhaven Instructions");
    EXPECT_TRUE(
        help.text.starts_with(" Main Screen: (Select Game, History Set, Hot Table)\r\n\r\n These selections "
                              "determine the criteria for viewing and\r\n"));
    EXPECT_NE(help.text.find("\r\n\r\n" + std::string(102, '-') + "\r\n Main Screen: (Single Play)\r\n\r\n"),
              std::string::npos);
}

TEST(HelpText, ItsTopicsAreTheIndexesOfTheMenuEntries) {
    EXPECT_EQ(instructionsTopic, 0);
    EXPECT_EQ(aboutTopic, 2);
}

TEST(HelpText, AnyOtherTopicIsTheProgram) {
    constexpr std::int16_t topics[] = {1, 2, -1, 32767};
    for (const std::int16_t topic : topics) {
        EXPECT_EQ(HelpOf(topic).heading, "About Ballhaven");
        EXPECT_TRUE(HelpOf(topic).text.starts_with(" Ballhaven\r\n  Version 1.5.6  12/02/02\r\n\r\n"));
    }
}

TEST(HelpText, EveryLineEndsInACarriageReturnAndALineFeedAndTheLastBlockInOneMorePair) {
    constexpr std::int16_t topics[] = {0, 2};
    for (const std::int16_t topic : topics) {
        const std::string text = HelpOf(topic).text;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == '\n') {
                EXPECT_TRUE(at > 0 && text[at - 1] == '\r') << "at " << at;
            } else if (text[at] == '\r') {
                EXPECT_TRUE(at + 1 < text.size() && text[at + 1] == '\n') << "at " << at;
            }
        }
        EXPECT_TRUE(text.ends_with(".\r\n\r\n"));
    }
}

}  // namespace
}  // namespace ballhaven
