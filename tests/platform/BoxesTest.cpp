#include "platform/Boxes.h"

#include "platform/Application.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "support/MessageScript.h"
#include "support/PointerKeeper.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::MessageScript;

TEST(Boxes, BearTheApplicationsTitle) {
    MessageScript boxes;
    const std::string title = ApplicationTitle();
    SetApplicationTitle("Another title");
    boxes.Expect("Another title", "Done.\nAll of it.", BoxButtons::Ok, BoxIcon::Information);
    Tell("Done.\nAll of it.", BoxIcon::Information);
    SetApplicationTitle(title);
}

TEST(Boxes, AQuestionIsTrueForYes) {
    MessageScript boxes;
    boxes.Expect("Ballhaven", "Go on?", BoxButtons::YesNo, BoxIcon::None, BoxAnswer::Yes);
    EXPECT_TRUE(Ask("Go on?"));
    boxes.Expect("Ballhaven", "Go on?", BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::No);
    EXPECT_FALSE(Ask("Go on?", BoxIcon::Question));
}

TEST(Boxes, AQuestionBeforeALossStandsOnNo) {
    MessageScript boxes;
    boxes.ExpectBeforeLoss("Erase it?", BoxIcon::Critical, BoxAnswer::Yes);
    EXPECT_TRUE(AskBeforeLoss("Erase it?", BoxIcon::Critical));
    boxes.ExpectBeforeLoss("Erase it?", BoxIcon::Critical, BoxAnswer::No);
    EXPECT_FALSE(AskBeforeLoss("Erase it?", BoxIcon::Critical));
}

TEST(Boxes, TakeTheHourglassOffForAsLongAsTheyAreOpen) {
    const support::PointerKeeper pointer;
    MessageScript restored;  // puts the answerer back at its end
    bool hourglassMeanwhile = true;
    services.showMessageBox = [&](const MessageBoxRequest&) {
        hourglassMeanwhile = pointer.hourglass;
        return BoxAnswer::Ok;
    };
    const WaitPointer waiting;
    Tell("Done.");
    EXPECT_FALSE(hourglassMeanwhile);
    EXPECT_TRUE(pointer.hourglass);
}

}  // namespace
}  // namespace ballhaven::platform
