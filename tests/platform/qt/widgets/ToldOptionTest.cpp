#include "platform/qt/widgets/ToldOption.h"

#include "platform/controls/Controls.h"
#include "support/qt/TestWindow.h"

#include <QAccessible>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

namespace ballhaven::platform {
namespace {

/// Two options, as assistive tools are told of them.
class ToldOption : public testing::Test {
  protected:
    void SetUp() override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            options[i].name = "option(" + std::to_string(i) + ")";
            options[i].caption = i == 0 ? "&All" : "&Main";
            options[i].bounds = Bounds{0, static_cast<int>(i) * 300, 1500, 300};
            options[i].group = options;
        }
        options[0].Choose();
        options[1].click = [this] { ++clicks; };
        form.Show();
    }

    [[nodiscard]] QAccessibleInterface& Told(const char* name) {
        return *QAccessible::queryAccessibleInterface(form.Find<QWidget>(name));
    }

    std::array<OptionButton, 2> options;
    support::TestWindow form{&options[0], &options[1]};
    int clicks = 0;
};

TEST_F(ToldOption, IsARadioButtonCalledByItsCaption) {
    EXPECT_EQ(Told("option(0)").role(), QAccessible::RadioButton);
    EXPECT_EQ(Told("option(0)").text(QAccessible::Name), QStringLiteral("All"));
}

TEST_F(ToldOption, SaysWhetherItIsChosen) {
    EXPECT_TRUE(Told("option(0)").state().checkable);
    EXPECT_TRUE(Told("option(0)").state().checked);
    EXPECT_FALSE(Told("option(1)").state().checked);
}

TEST_F(ToldOption, IsChosenByAToolAsByTheUser) {
    QAccessibleActionInterface& actions = *Told("option(1)").actionInterface();
    ASSERT_TRUE(actions.actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions.doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(options[1].IsChosen());
    EXPECT_TRUE(Told("option(1)").state().checked);
    EXPECT_FALSE(Told("option(0)").state().checked);
}

TEST_F(ToldOption, TakesTheKeyboardWhenAToolAsksForIt) {
    QAccessibleActionInterface& actions = *Told("option(0)").actionInterface();
    actions.doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(Told("option(0)").state().focused);
}

}  // namespace
}  // namespace ballhaven::platform
