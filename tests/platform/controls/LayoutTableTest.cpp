#include "platform/controls/LayoutTable.h"

#include <gtest/gtest.h>

#include <array>

namespace ballhaven::platform {
namespace {

TEST(LayoutTable, AControlOfAnArrayBearsItsIndex) {
    EXPECT_EQ(NameWithIndex("cboList", 2), "cboList(2)");
    EXPECT_EQ(NameWithIndex("grdHist", -1), "grdHist");
}

TEST(LayoutTable, ControlsStandOnTheirContainersInTheOrderOfTheRows) {
    Window window;
    Panel panel;
    std::array<Button, 2> buttons;
    const PlacedControl rows[] = {
        {panel, "picToolbar", -1, nullptr, {0, 0, 900, 540}, "Toolbar"},
        {buttons[1], "cmdButton", 1, &panel, {0, 15, 495, 495}},
        {buttons[0], "cmdButton", 0, nullptr, {30, 45, 60, 75}},
    };
    PlaceControls(window, rows);

    EXPECT_EQ(window.controls, (std::vector<Control*>{&panel, &buttons[1], &buttons[0]}));
    EXPECT_EQ(panel.name, "picToolbar");
    EXPECT_EQ(*panel.accessibleName, "Toolbar");
    EXPECT_EQ(buttons[1].name, "cmdButton(1)");
    EXPECT_EQ(buttons[1].container, &panel);
    EXPECT_EQ(*buttons[1].bounds, (Bounds{0, 15, 495, 495}));
    EXPECT_EQ(*buttons[1].accessibleName, "");
    EXPECT_EQ(buttons[0].container, nullptr);
    EXPECT_EQ(*buttons[0].bounds, (Bounds{30, 45, 60, 75}));
}

TEST(LayoutTable, ATextGoesToThePropertyOfItsRow) {
    Button button;
    Label label;
    const ControlText rows[] = {
        {button.toolTip, "Print Data"},
        {button.picture, "print"},
        {label.text, "Play"},
    };
    SetTexts(rows);

    EXPECT_EQ(*button.toolTip, "Print Data");
    EXPECT_EQ(*button.picture, "print");
    EXPECT_EQ(*button.caption, "");
    EXPECT_EQ(*label.text, "Play");
}

TEST(LayoutTable, AMenuHoldsItsEntriesInTheOrderOfTheRows) {
    Window window;
    Menu file;
    Menu edit;
    MenuItem print;
    MenuItem bar;
    std::array<MenuItem, 1> undo;
    const PlacedMenu menus[] = {{file, "mnuFile", "&File"}, {edit, "mnuEdit", "&Edit"}};
    const PlacedMenuItem items[] = {
        {file, print, "mnuPrint", -1, "&Print"},
        {edit, undo[0], "mnuEditArray", 0, "&Undo"},
        {file, bar, "mnuBar", -1, "-"},
    };
    PlaceMenus(window, menus, items);
    PlaceMenus(window, {}, {});

    EXPECT_EQ(window.menus, (std::vector<Menu*>{&file, &edit}));
    EXPECT_EQ(file.name, "mnuFile");
    EXPECT_EQ(file.caption, "&File");
    EXPECT_EQ(file.items, (std::vector<MenuItem*>{&print, &bar}));
    EXPECT_EQ(edit.items, (std::vector<MenuItem*>{&undo[0]}));
    EXPECT_EQ(print.name, "mnuPrint");
    EXPECT_EQ(bar.caption, "-");
    EXPECT_EQ(undo[0].name, "mnuEditArray(0)");
}

TEST(LayoutTable, AWindowThatIsLaidOutAgainHasItsEntriesOnce) {
    Menu file;
    MenuItem print;
    const PlacedMenu menus[] = {{file, "mnuFile", "&File"}};
    const PlacedMenuItem items[] = {{file, print, "mnuPrint", -1, "&Print"}};
    for (int loading = 0; loading < 2; ++loading) {
        Window window;
        PlaceMenus(window, menus, items);
    }

    EXPECT_EQ(file.items, std::vector<MenuItem*>{&print});
}

}  // namespace
}  // namespace ballhaven::platform
