#include "platform/controls/Controls.h"

#include <gtest/gtest.h>

#include <array>

namespace ballhaven::platform {
namespace {

class TheDropDownList : public testing::Test {
  protected:
    TheDropDownList() {
        list.Fill({"Hot Numbers", "Hot Pairs", "No Hitters"});
        list.change = [this] { changes.push_back(list.Selected()); };
    }

    DropDownList list;
    std::vector<int> changes;
};

TEST_F(TheDropDownList, HasNothingSelectedWhenItIsFilled) {
    EXPECT_EQ(list.Selected(), -1);
    EXPECT_EQ(list.Text(), "");
    list.Select(1);
    list.Fill({"Hot Cards"});

    EXPECT_EQ(list.Selected(), -1);
    EXPECT_EQ(changes, std::vector<int>{1}) << "filling raises no notice";
    EXPECT_EQ(list.Entries(), std::vector<std::string>{"Hot Cards"});
}

TEST_F(TheDropDownList, RaisesANoticeWhenTheProgramSelectsAnotherEntry) {
    list.Select(2);
    list.Select(2);

    EXPECT_EQ(list.Text(), "No Hitters");
    EXPECT_EQ(changes, std::vector<int>{2});
}

TEST_F(TheDropDownList, RaisesANoticeForTheUsersChoiceOfTheSelectedEntryToo) {
    list.SelectByUser(2);
    list.SelectByUser(2);

    EXPECT_EQ(changes, (std::vector<int>{2, 2}));
}

TEST_F(TheDropDownList, IsNeverSelectedOutsideItself) {
    list.Select(7);
    EXPECT_EQ(list.Selected(), 2);
    list.Select(-7);
    EXPECT_EQ(list.Selected(), -1);
    list.Fill({});
    list.Select(0);
    EXPECT_EQ(list.Selected(), -1);
}

TEST(TheOptionButton, IsChosenAloneInItsGroup) {
    std::array<OptionButton, 3> group;
    OptionButton stranger;
    std::vector<int> clicks;
    for (std::size_t index = 0; index < group.size(); ++index) {
        group[index].group = group;
        group[index].click = [&clicks, index] { clicks.push_back(static_cast<int>(index)); };
    }
    stranger.Choose();
    group[2].Choose();
    group[0].Choose();
    group[0].Choose();

    EXPECT_TRUE(group[0].IsChosen());
    EXPECT_FALSE(group[1].IsChosen());
    EXPECT_FALSE(group[2].IsChosen());
    EXPECT_TRUE(stranger.IsChosen());
    EXPECT_EQ(clicks, (std::vector<int>{2, 0})) << "code that sets it again raises nothing";
}

TEST(TheTextBox, MarksAPartOfItsText) {
    TextBox box;
    box.text = "5001";
    EXPECT_EQ(box.Selection(), (TextSelection{0, 0}));
    box.Select({1, 2});

    EXPECT_EQ(box.Selection(), (TextSelection{1, 2}));
}

TEST(TheTextBox, MarksNothingBeyondItsText) {
    TextBox box;
    box.text = "5001";
    box.Select({2, 100});
    EXPECT_EQ(box.Selection(), (TextSelection{2, 2}));
    box.Select({7, 1});
    EXPECT_EQ(box.Selection(), (TextSelection{4, 0}));
    box.Select({-1, -1});
    EXPECT_EQ(box.Selection(), (TextSelection{0, 0}));

    box.Select({0, 4});
    box.text = "50";
    EXPECT_EQ(box.Selection(), (TextSelection{0, 2})) << "a shorter text takes the mark with it";
}

}  // namespace
}  // namespace ballhaven::platform
