#include "forms/CalendarForm.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using platform::Bounds;
using std::chrono::year;

class TheCalendarForm : public testing::Test {
  protected:
    void SetUp() override { LayOutCalendar(); }
};

TEST_F(TheCalendarForm, HasItsTwoButtonsUnderTheRuleBelowTheDays) {
    EXPECT_EQ(ahcCalendar.window.controls,
              (std::vector<platform::Control*>{&ahcCalendar.surface, &ahcCalendar.Line1, &ahcCalendar.cmdCal[1],
                                               &ahcCalendar.cmdCal[0]}));
    EXPECT_EQ(*ahcCalendar.surface.bounds, (Bounds{0, 0, 2520, 2760}));
    EXPECT_EQ(*ahcCalendar.Line1.bounds, (Bounds{120, 2040, 2280, 0}));
    EXPECT_EQ(*ahcCalendar.cmdCal[1].bounds, (Bounds{240, 2160, 855, 375}));
    EXPECT_EQ(*ahcCalendar.cmdCal[0].bounds, (Bounds{1440, 2160, 855, 375}));
    EXPECT_EQ(*ahcCalendar.cmdCal[1].caption, "&Ok");
    EXPECT_EQ(*ahcCalendar.cmdCal[0].caption, "&Cancel");
    EXPECT_EQ(ahcCalendar.cmdCal[0].name, "cmdCal(0)");
    EXPECT_EQ(*ahcCalendar.window.title, "Calendar");
}

TEST_F(TheCalendarForm, ItsButtonsAnswerNoKeys) {
    for (const platform::Button& button : ahcCalendar.cmdCal) {
        EXPECT_FALSE(*button.answersKeys) << button.name;
    }
}

TEST_F(TheCalendarForm, CannotBeResized) {
    EXPECT_TRUE(ahcCalendar.window.fixedSize);
}

TEST_F(TheCalendarForm, KeepsItsDateWhereItIsGivenOneThatDoesNotExist) {
    ahcCalendar.SetToday(year{2004} / 2 / 29);
    ahcCalendar.SetToday(year{2003} / 2 / 29);

    EXPECT_EQ(ahcCalendar.Today, year{2004} / 2 / 29);
}

TEST_F(TheCalendarForm, IsDrawnUpAfterItHasLoadedAndClosesByTerminate) {
    std::vector<std::string> order;
    ahcCalendar.window.load = [&order] { order.emplace_back("load"); };
    ahcCalendar.prepare = [&order] { order.emplace_back("prepare"); };
    ahcCalendar.window.unload = [&order] { order.emplace_back("unload"); };
    ahcCalendar.Initialize();
    EXPECT_TRUE(ahcCalendar.Loaded());
    ahcCalendar.Terminate();
    ahcCalendar.Terminate();

    EXPECT_FALSE(ahcCalendar.Loaded());
    EXPECT_EQ(order, (std::vector<std::string>{"load", "prepare", "unload"}));
}

TEST_F(TheCalendarForm, RemembersAPlaceAndLoadsForIt) {
    ahcCalendar.SetBorderLeft(1500);
    ahcCalendar.SetBorderTop(750);

    EXPECT_TRUE(ahcCalendar.Loaded());
    EXPECT_EQ(ahcCalendar.BorderLeft, 1500);
    EXPECT_EQ(ahcCalendar.BorderTop, 750);
    EXPECT_EQ(ahcCalendar.window.Left(), 1500);
    EXPECT_EQ(ahcCalendar.window.Top(), 750);
}

}  // namespace
}  // namespace ballhaven
