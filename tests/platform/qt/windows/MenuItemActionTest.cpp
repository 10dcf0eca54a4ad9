#include "platform/qt/windows/MenuItemAction.h"

#include "support/qt/TestWindow.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

#include <array>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class MenuItemActionTest : public testing::Test {
  protected:
    void SetUp() override {
        const char* const captions[] = {"Date &Ascending", "-", "Date &Decending"};
        for (std::size_t index = 0; index < items.size(); ++index) {
            items[index].name = "mnuViewArray(" + std::to_string(index) + ")";
            items[index].caption = captions[index];
            items[index].click = [this, index] { clicks.push_back(static_cast<int>(index)); };
        }
        menu.name = "mnuView";
        menu.caption = "&View";
        menu.items = {&items[0], &items[1], &items[2]};
        const Handler layout = form.window.layout;
        form.window.layout = [this, layout] {
            layout();
            form.window.menus = {&menu};
        };
        form.Show();
    }

    QAction* Action(int index) { return form.Find<QAction>(items[static_cast<std::size_t>(index)].name.c_str()); }

    /// Opens the menu by its access key and chooses an entry by its own.
    void Choose(Qt::Key key) {
        QTest::keyClick(form.Widget(), Qt::Key_V, Qt::AltModifier);
        QMenu* const shown = form.Find<QMenu>("mnuView");
        ASSERT_TRUE(QTest::qWaitForWindowExposed(shown));
        QTest::keyClick(shown, key);
    }

    std::array<MenuItem, 3> items;
    Menu menu;
    TestWindow form{};
    std::vector<int> clicks;
};

TEST_F(MenuItemActionTest, AccessKeysReachTheMenuAndItsEntries) {
    Choose(Qt::Key_A);
    Choose(Qt::Key_D);

    EXPECT_EQ(clicks, (std::vector<int>{0, 2}));
}

TEST_F(MenuItemActionTest, AClickWithTheMouseIsReported) {
    QMenuBar* const bar = form.Find<QMenuBar>("menuBar");
    QMenu* const shown = form.Find<QMenu>("mnuView");
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().front()).center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(shown));
    QTest::mouseClick(shown, Qt::LeftButton, {}, shown->actionGeometry(Action(2)).center());

    EXPECT_EQ(clicks, std::vector<int>{2});
}

TEST_F(MenuItemActionTest, ADashIsASeparator) {
    EXPECT_TRUE(Action(1)->isSeparator());
    EXPECT_FALSE(Action(0)->isSeparator());
}

TEST_F(MenuItemActionTest, OnlyACheckedEntryBearsAMark) {
    items[0].checked = true;
    EXPECT_TRUE(Action(0)->isCheckable() && Action(0)->isChecked());
    EXPECT_FALSE(Action(2)->isCheckable());

    items[0].checked = false;
    EXPECT_FALSE(Action(0)->isCheckable());
}

TEST_F(MenuItemActionTest, ChoosingACheckedEntryLeavesItsMarkToTheProgram) {
    items[0].checked = true;
    Choose(Qt::Key_A);

    EXPECT_TRUE(Action(0)->isChecked());
    EXPECT_EQ(clicks, std::vector<int>{0});
}

TEST_F(MenuItemActionTest, AnEntryMayUnloadItsWindow) {
    items[2].click = [this] { form.window.Unload(); };
    Choose(Qt::Key_D);
    support::Settle();

    EXPECT_FALSE(form.window.IsLoaded());
    EXPECT_EQ(items[2].view, nullptr);
}

TEST_F(MenuItemActionTest, ASeparatorHasNoTextAndSaysNothing) {
    EXPECT_EQ(Action(1)->text(), QString());
    QMenu* const shown = form.Find<QMenu>("mnuView");
    QAccessibleInterface* const entries = QAccessible::queryAccessibleInterface(shown);
    ASSERT_EQ(entries->childCount(), 3);
    EXPECT_EQ(entries->child(0)->text(QAccessible::Name), QStringLiteral("Date Ascending"));
    EXPECT_EQ(entries->child(1)->role(), QAccessible::Separator);
    EXPECT_EQ(entries->child(1)->text(QAccessible::Name), QString());
}

TEST_F(MenuItemActionTest, AnEntryThatIsSwitchedOffCannotBeChosen) {
    EXPECT_TRUE(Action(0)->isEnabled());
    items[0].enabled = false;
    EXPECT_FALSE(Action(0)->isEnabled());
    Action(0)->trigger();
    EXPECT_TRUE(clicks.empty());

    items[0].enabled = true;
    Action(0)->trigger();
    EXPECT_EQ(clicks, std::vector<int>{0});
}

}  // namespace
}  // namespace ballhaven::platform
