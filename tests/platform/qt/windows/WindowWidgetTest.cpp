#include "platform/qt/windows/WindowWidget.h"

#include "platform/Guard.h"
#include "platform/Services.h"
#include "platform/qt/windows/MessageDialog.h"
#include "support/MessageScript.h"
#include "support/qt/TestWindow.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace ballhaven::platform {
namespace {

using support::MessageScript;
using support::Settle;
using support::TestWindow;

/// Replaces the ending of the process by a note of its exit code.
class ProcessEnding {
  public:
    ProcessEnding() : before(services.endProcess) {
        services.endProcess = [this](int exitCode) { exitCodes.push_back(exitCode); };
    }
    ~ProcessEnding() { services.endProcess = before; }
    ProcessEnding(const ProcessEnding&) = delete;
    ProcessEnding& operator=(const ProcessEnding&) = delete;

    std::vector<int> exitCodes;

  private:
    std::function<void(int)> before;
};

class WindowWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        top.name = "picToolbar(1)";
        top.bounds = Bounds{0, 0, 0, 540};
        top.alignment = Panel::Alignment::Top;
        left.name = "picToolbar(0)";
        left.bounds = Bounds{0, 540, 2295, 0};
        left.alignment = Panel::Alignment::Left;
        button.name = "cmdButton(0)";
        button.bounds = Bounds{3000, 900, 1500, 375};
        button.caption = "Act";
        menu.name = "mnuFile";
        menu.caption = "&File";
        const Handler layout = form.window.layout;
        form.window.layout = [this, layout] {
            layout();
            form.window.menus = {&menu};
        };
    }

    void ClickButton() { QTest::mouseClick(form.Find("cmdButton(0)"), Qt::LeftButton); }

    /// Drags the window's edge until the client area has a size in pixels.
    void DragTo(int clientWidth, int clientHeight) {
        const int menuHeight = form.Find("menuBar")->height();
        form.Widget()->resize(clientWidth, clientHeight + menuHeight);
        Settle();
    }

    Panel top;
    Panel left;
    Button button;
    Menu menu;
    TestWindow form{&top, &left, &button};
};

TEST_F(WindowWidgetTest, BearsItsNameAndTitleAndFollowsTheTitle) {
    form.Show();
    EXPECT_EQ(form.Widget()->objectName(), QStringLiteral("frmTest"));
    EXPECT_EQ(form.Widget()->windowTitle(), QStringLiteral("Test"));

    form.window.title = "Other";
    EXPECT_EQ(form.Widget()->windowTitle(), QStringLiteral("Other"));
}

TEST_F(WindowWidgetTest, TheClientAreaIsTheOuterSizeLessTheFrame) {
    form.window.Load();
    form.window.resize = [] { FAIL() << "its showing is no change of its size"; };
    form.Show();

    EXPECT_EQ(form.Find("clientArea")->size(), QSize(400, 300));
    EXPECT_EQ(form.Find("clientArea")->y(), form.Find("menuBar")->height());
    EXPECT_EQ(form.window.Width(), 6120);
    EXPECT_EQ(form.window.Height(), 5310);
}

TEST_F(WindowWidgetTest, AResizeByTheUserIsInTheValueWhenTheHandlerRuns) {
    form.Show();
    std::vector<std::pair<int, int>> sizes;
    form.window.resize = [&] { sizes.emplace_back(form.window.Width(), form.window.Height()); };
    DragTo(500, 400);

    EXPECT_EQ(sizes, (std::vector<std::pair<int, int>>{{7620, 6810}}));
}

TEST_F(WindowWidgetTest, AResizeByTheProgramIsReportedOnceAndKeptToTheTwip) {
    form.Show();
    std::vector<int> heights;
    form.window.resize = [&] { heights.push_back(form.window.Height()); };
    form.window.Resize(6120, 5311);
    Settle();
    form.window.Resize(7620, 6811);
    Settle();

    EXPECT_EQ(heights, (std::vector<int>{5311, 6811}));
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(500, 400));
}

TEST_F(WindowWidgetTest, AlignedPanelsFollowTheWindow) {
    form.Show();
    EXPECT_EQ(form.Find("picToolbar(1)")->geometry(), QRect(0, 0, 400, 36));
    EXPECT_EQ(form.Find("picToolbar(0)")->geometry(), QRect(0, 36, 153, 264));

    DragTo(500, 400);
    EXPECT_EQ(form.Find("picToolbar(1)")->geometry(), QRect(0, 0, 500, 36));
    EXPECT_EQ(form.Find("picToolbar(0)")->geometry(), QRect(0, 36, 153, 364));
    EXPECT_EQ(*left.bounds, (Bounds{0, 540, 2295, 5460}));
}

TEST_F(WindowWidgetTest, TheCloseBoxUnloadsOnce) {
    form.Show();
    int unloads = 0;
    form.window.unload = [&] { ++unloads; };
    form.Widget()->close();
    Settle();

    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(form.window.IsLoaded());
    EXPECT_EQ(button.view, nullptr);
}

TEST_F(WindowWidgetTest, AWindowMayBeUnloadedFromInsideItsOwnHandlerAndShownAgain) {
    int clicks = 0;
    button.click = [&] {
        ++clicks;
        form.window.Unload();
    };
    form.Show();
    ClickButton();
    EXPECT_FALSE(form.window.IsLoaded());

    form.Show();
    ClickButton();
    Settle();
    EXPECT_EQ(clicks, 2);
}

TEST_F(WindowWidgetTest, AWindowMayBeUnloadedAndLoadedAnewInsideOneHandler) {
    button.click = [&] {
        button.click = nullptr;
        form.window.Unload();
        form.window.Show();
    };
    form.Show();
    ClickButton();
    Settle();

    ASSERT_NE(form.Widget(), nullptr);
    EXPECT_TRUE(form.Widget()->isVisible());
    EXPECT_EQ(dynamic_cast<QWidget*>(button.view)->window(), form.Widget());
}

TEST_F(WindowWidgetTest, AFailingHandlerShowsOneBoxAndEndsTheProcess) {
    ProcessEnding ending;
    MessageScript script;
    script.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    button.click = [] { throw std::runtime_error("Overflow"); };
    form.Show();
    ClickButton();

    EXPECT_EQ(script.Answered(), 1U);
    EXPECT_EQ(ending.exitCodes, std::vector<int>{1});
}

TEST_F(WindowWidgetTest, EveryNoticeOfTheWindowRunsUnderTheGuard) {
    ProcessEnding ending;
    MessageScript script;
    for (const char* notice : {"activate", "resize", "unload"}) {
        script.Expect("Ballhaven", notice, BoxButtons::Ok, BoxIcon::Critical);
    }
    form.window.activate = [] { throw std::runtime_error("activate"); };
    form.window.unload = [] { throw std::runtime_error("unload"); };
    form.Show();
    form.window.resize = [] { throw std::runtime_error("resize"); };
    DragTo(500, 400);
    form.Widget()->close();

    EXPECT_EQ(ending.exitCodes, (std::vector<int>{1, 1, 1}));
}

TEST_F(WindowWidgetTest, ItsFirstShowingActivatesItOnce) {
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    form.Show();

    EXPECT_EQ(activations, 1);
}

TEST_F(WindowWidgetTest, ItBecomesActiveAgainFromAnotherWindowOfTheProgram) {
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    form.Show();
    TestWindow other{};
    other.Show();
    form.window.ShowInFront();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.Widget()));

    EXPECT_EQ(activations, 2);
}

TEST_F(WindowWidgetTest, ItBecomesActiveAgainWhenTheWindowOverItCloses) {
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    form.Show();
    {
        TestWindow other{};
        other.Show();
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.Widget()));

    EXPECT_EQ(activations, 2);
}

TEST_F(WindowWidgetTest, AMessageBoxIsNoOtherWindowOfTheProgram) {
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    form.Show();
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    ASSERT_EQ(ShowMessageDialog({"Done", BoxButtons::Ok, BoxIcon::None, "Ballhaven"}, form.Widget()), BoxAnswer::Ok);
    form.Widget()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.Widget()));

    EXPECT_EQ(activations, 1);
}

TEST_F(WindowWidgetTest, AnotherProgramIsNoOtherWindowOfTheProgram) {
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    form.Show();
    QWidget stranger;
    stranger.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&stranger));
    form.Widget()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.Widget()));

    EXPECT_EQ(activations, 1);
}

TEST_F(WindowWidgetTest, AModalShowingReturnsWhenTheWindowHasClosed) {
    form.Show();
    Button close;
    close.name = "cmdClose";
    close.bounds = Bounds{0, 0, 1500, 375};
    TestWindow dialog{&close};
    close.click = [&] { dialog.window.Unload(); };
    bool wasModal = false;
    QTimer::singleShot(0, [&] {
        wasModal = QApplication::activeModalWidget() == dialog.Widget();
        QTest::mouseClick(dialog.Find("cmdClose"), Qt::LeftButton);
    });
    dialog.window.ShowModal();

    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(dialog.window.IsLoaded());
}

TEST_F(WindowWidgetTest, ALateReportOfTheDesktopDoesNotActivateTheWindowBehindAModalOne) {
    form.Show();
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    int activationsBehind = -1;
    support::TestWindow dialog({});
    QTimer::singleShot(0, [&] {
        Settle();
        QEvent late(QEvent::WindowActivate);
        QCoreApplication::sendEvent(form.Widget(), &late);
        activationsBehind = activations;
        dialog.window.Unload();
    });
    dialog.window.ShowModal();
    EXPECT_EQ(activationsBehind, 0);

    ASSERT_TRUE(QTest::qWaitForWindowActive(form.Widget()));
    Settle();
    EXPECT_EQ(activations, 1) << "when the modal window has closed";
}

TEST_F(WindowWidgetTest, AModalWindowThatClosesBeforeTheDesktopHasMadeItActiveLeavesTheFocusToTheOneBehind) {
    form.Show();
    int activations = 0;
    form.window.activate = [&] { ++activations; };
    support::TestWindow dialog({});
    dialog.window.activate = [&] { dialog.window.Unload(); };
    dialog.window.ShowModal();
    QTest::qWait(20);  // what the desktop still has to report

    EXPECT_TRUE(form.Widget()->isActiveWindow());
    EXPECT_EQ(activations, 1);
}

TEST_F(WindowWidgetTest, AWindowThatClosesAfterLosingTheFocusTakesItFromNobody) {
    form.Show();
    QWidget stranger;
    {
        TestWindow other{};
        other.Show();
        stranger.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&stranger));
    }
    QTest::qWait(20);

    EXPECT_TRUE(stranger.isActiveWindow());
}

TEST_F(WindowWidgetTest, AModalWindowHasItsOwnTitleAndACloseBoxOnly) {
    form.Show();
    support::TestWindow dialog({});
    dialog.window.title = "A question";
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(dialog.Widget()->windowTitle(), QStringLiteral("A question"));
        EXPECT_EQ(dialog.Widget()->windowType(), Qt::Dialog);
        EXPECT_TRUE(dialog.Widget()->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        EXPECT_FALSE(dialog.Widget()->windowFlags().testFlag(Qt::WindowMinMaxButtonsHint));
        dialog.window.Unload();
    });
    dialog.window.ShowModal();
}

TEST_F(WindowWidgetTest, ShowingInFrontRestoresAMinimisedWindow) {
    form.Show();
    form.Widget()->showMinimized();
    form.window.ShowInFront();

    EXPECT_FALSE(form.Widget()->isMinimized());
    EXPECT_TRUE(form.Widget()->isVisible());
}

TEST_F(WindowWidgetTest, TimersTickWhileTheWindowIsLoaded) {
    Timer timer;
    timer.name = "tmrMessage";
    timer.interval = 1;
    int ticks = 0;
    timer.tick = [&] {
        if (++ticks == 3) {
            form.window.Unload();
        }
    };
    const Handler layout = form.window.layout;
    form.window.layout = [this, layout, &timer] {
        layout();
        form.window.timers = {&timer};
    };
    form.Show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !form.window.IsLoaded(); }));
    Settle();

    EXPECT_EQ(ticks, 3);
}

TEST_F(WindowWidgetTest, ATickWaitsForTheEndOfTheOneBefore) {
    Timer timer;
    timer.name = "tmrMessage";
    timer.interval = 1;
    int running = 0;
    int ticks = 0;
    timer.tick = [&] {
        EXPECT_EQ(++running, 1);
        QTest::qWait(20 * timer.interval);
        --running;
        ++ticks;
    };
    const Handler layout = form.window.layout;
    form.window.layout = [this, layout, &timer] {
        layout();
        form.window.timers = {&timer};
    };
    form.Show();

    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }));
    form.window.Unload();
}

TEST_F(WindowWidgetTest, TheTabKeyFollowsTheOrderOfTheControls) {
    TextBox first;
    first.name = "txtFirst";
    first.bounds = Bounds{0, 900, 750, 285};
    Button second;
    second.name = "cmdSecond";
    second.bounds = Bounds{0, 0, 750, 285};
    TestWindow other{&first, &second};
    other.Show();
    first.TakeFocus();
    QTest::keyClick(other.Find("txtFirst"), Qt::Key_Tab);

    EXPECT_TRUE(other.Find("cmdSecond")->hasFocus());
}

TEST_F(WindowWidgetTest, EscapeThatNoControlUsesGoesToTheWindow) {
    int escapes = 0;
    form.window.escape = [&escapes] { ++escapes; };
    form.Show();
    QTest::keyClick(form.Find<QWidget>("cmdButton(0)"), Qt::Key_Escape);
    QTest::keyClick(form.Find<QWidget>("cmdButton(0)"), Qt::Key_F5);
    EXPECT_EQ(escapes, 1);
}

TEST_F(WindowWidgetTest, AControlBroughtToTheFrontCoversItsSiblings) {
    Picture upper;
    upper.name = "picUpper";
    upper.bounds = Bounds{3000, 900, 1500, 375};
    TestWindow other{&upper, &button};
    other.Show();
    ASSERT_EQ(other.Find("clientArea")->childAt(250, 70), other.Find("cmdButton(0)"));
    upper.BringToFront();

    EXPECT_EQ(other.Find("clientArea")->childAt(250, 70), other.Find("picUpper"));
}

TEST_F(WindowWidgetTest, ItsStateIsReadAndSet) {
    form.Show();
    EXPECT_EQ(form.window.State(), WindowState::Normal);
    form.window.SetState(WindowState::Minimised);
    EXPECT_TRUE(form.Widget()->isMinimized());
    EXPECT_EQ(form.window.State(), WindowState::Minimised);
    form.window.SetState(WindowState::Maximised);
    EXPECT_TRUE(form.Widget()->isMaximized());
    EXPECT_FALSE(form.Widget()->isMinimized());
    EXPECT_EQ(form.window.State(), WindowState::Maximised);
    form.window.SetState(WindowState::Normal);
    EXPECT_FALSE(form.Widget()->isMaximized());
}

TEST_F(WindowWidgetTest, AStateThatTheUserChoseIsReadWhenTheResizeIsReported) {
    form.Show();
    std::vector<WindowState> states;
    form.window.resize = [&] { states.push_back(form.window.State()); };
    form.Widget()->showMaximized();
    Settle();

    ASSERT_FALSE(states.empty());
    EXPECT_EQ(states.back(), WindowState::Maximised);
}

TEST_F(WindowWidgetTest, AMaximisedWindowKeepsItsSizeWhenItsTitleChanges) {
    form.Show();
    form.Widget()->showMaximized();
    Settle();
    const QSize size = form.Widget()->size();
    form.window.title = "Other";
    Settle();

    EXPECT_EQ(form.Widget()->size(), size);
    EXPECT_TRUE(form.Widget()->isMaximized());
}

TEST_F(WindowWidgetTest, OpensAtThePlaceThatItWasGivenBeforeItWasLoaded) {
    form.window.MoveTo(1500, 750);
    form.Show();

    EXPECT_EQ(form.Widget()->pos(), QPoint(100, 50));
    EXPECT_EQ(form.window.Left(), 1500);
    EXPECT_EQ(form.window.Top(), 750);
}

TEST_F(WindowWidgetTest, AWindowThatIsSwitchedOffTakesNothingAndDoesNotClose) {
    int clicks = 0;
    button.click = [&] { ++clicks; };
    form.Show();
    form.window.enabled = false;
    ClickButton();
    form.Widget()->close();
    Settle();
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(form.window.IsLoaded());

    form.window.enabled = true;
    ClickButton();
    EXPECT_EQ(clicks, 1);
    form.Widget()->close();
    EXPECT_FALSE(form.window.IsLoaded());
}

TEST_F(WindowWidgetTest, LosingTheFocusIsReportedToWhateverWindowItGoes) {
    int losses = 0;
    form.window.deactivate = [&] { ++losses; };
    form.Show();
    EXPECT_EQ(losses, 0);
    QWidget stranger;
    stranger.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&stranger));

    EXPECT_EQ(losses, 1);
}

TEST_F(WindowWidgetTest, AWindowMayCloseAsItLosesTheFocusAndItsClosingIsNoLoss) {
    TestWindow other{};
    other.Show();
    int losses = 0;
    form.window.deactivate = [&] {
        ++losses;
        form.window.Unload();
    };
    form.Show();
    other.Widget()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(other.Widget()));
    Settle();

    EXPECT_FALSE(form.window.IsLoaded());
    EXPECT_EQ(losses, 1);
    EXPECT_TRUE(other.Widget()->isActiveWindow());
}

TEST_F(WindowWidgetTest, AWindowOfFixedSizeIsResizedByTheProgramAlone) {
    form.window.fixedSize = true;
    form.Show();
    DragTo(500, 400);
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(400, 300));
    EXPECT_FALSE(form.Widget()->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(form.Widget()->windowFlags().testFlag(Qt::WindowCloseButtonHint));

    form.window.Resize(7620, 6810);
    Settle();
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(500, 400));
    DragTo(400, 300);
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(500, 400));
}

TEST_F(WindowWidgetTest, AWindowIsNotDraggedBeyondItsLimits) {
    form.window.smallestSize = {4620, 3810};
    form.window.largestSize = {6120, 5310};
    form.Show();
    DragTo(500, 400);
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(400, 300));
    DragTo(350, 250);
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(350, 250));
    DragTo(100, 100);
    EXPECT_EQ(form.Find("clientArea")->size(), QSize(300, 200));
}

TEST_F(WindowWidgetTest, AWindowThatIsNotOfFixedSizeCanBeMaximised) {
    form.Show();

    EXPECT_TRUE(form.Widget()->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

}  // namespace
}  // namespace ballhaven::platform
