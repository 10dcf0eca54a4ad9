#include "forms/HelpBoxForm.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using platform::Bounds;

class TheHelpBoxForm : public testing::Test {
  protected:
    void SetUp() override { LayOutHelpBoxForm(); }
};

TEST_F(TheHelpBoxForm, HasItsHeadingItsTextAndItsButton) {
    EXPECT_EQ(frmHelpBox.window.controls,
              (std::vector<platform::Control*>{&frmHelpBox.lblLabel, &frmHelpBox.cmdHelp, &frmHelpBox.txtText}));
    EXPECT_EQ(*frmHelpBox.lblLabel.bounds, (Bounds{840, 120, 4095, 375}));
    EXPECT_EQ(*frmHelpBox.txtText.bounds, (Bounds{150, 480, 5415, 5295}));
    EXPECT_EQ(*frmHelpBox.cmdHelp.bounds, (Bounds{120, 0, 615, 495}));
}

TEST_F(TheHelpBoxForm, TheHeadingIsBoldCentredAndOfTwelvePoints) {
    EXPECT_TRUE(*frmHelpBox.lblLabel.bold);
    EXPECT_EQ(*frmHelpBox.lblLabel.alignment, platform::TextAlignment::Centre);
    EXPECT_EQ(*frmHelpBox.lblLabel.fontHeight, 16);
}

TEST_F(TheHelpBoxForm, TheButtonHasAPictureOfAPrinterAndNoCaption) {
    EXPECT_EQ(*frmHelpBox.cmdHelp.picture, "print");
    EXPECT_EQ(*frmHelpBox.cmdHelp.caption, "");
    EXPECT_EQ(*frmHelpBox.cmdHelp.accessibleName, "Print");
}

TEST_F(TheHelpBoxForm, HasAPlaceAndASizeThatTheUserCannotChange) {
    EXPECT_EQ(frmHelpBox.window.Left(), 3800);
    EXPECT_EQ(frmHelpBox.window.Top(), 0);
    EXPECT_EQ(frmHelpBox.window.Width(), 5850);
    EXPECT_EQ(frmHelpBox.window.Height(), 6800);
    EXPECT_TRUE(frmHelpBox.window.fixedSize);
}

}  // namespace
}  // namespace ballhaven
