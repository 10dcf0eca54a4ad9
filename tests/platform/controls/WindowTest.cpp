#include "platform/controls/Window.h"

#include "support/PointerKeeper.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

using Texts = std::vector<std::string>;

/// The widgets of a window that only note what is asked of them.
class NotedWindow final : public WindowView {
  public:
    explicit NotedWindow(Texts& notesOfTest) : notes(notesOfTest) {}

    void Refresh() override { notes.emplace_back("refresh"); }
    void Show() override { notes.emplace_back("show"); }
    void ShowModal() override { notes.emplace_back("show modal"); }
    void ShowInFront() override { notes.emplace_back("show in front"); }
    void RepaintNow() override { notes.emplace_back("repaint"); }
    void MoveTo(int newLeft, int newTop) override {
        left = newLeft;
        top = newTop;
    }
    [[nodiscard]] int Left() const override { return left; }
    [[nodiscard]] int Top() const override { return top; }
    void SetState(WindowState newState) override { state = newState; }
    [[nodiscard]] WindowState State() const override { return state; }

  private:
    Texts& notes;
    int left = 75;
    int top = 150;
    WindowState state = WindowState::Normal;
};

/// A toolkit whose windows only note what is asked of them.
class NotingToolkit final : public support::PointerKeeper {
  public:
    explicit NotingToolkit(Texts& notesOfTest) : notes(notesOfTest) {}

    void Build(Window& window) override {
        notes.emplace_back("build");
        widgets = std::make_unique<NotedWindow>(notes);
        window.view = widgets.get();
    }
    void TearDown(Window& window) override {
        notes.emplace_back("tear down");
        window.view = nullptr;
        widgets.reset();
    }

  private:
    Texts& notes;
    std::unique_ptr<NotedWindow> widgets;
};

class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        window.layout = [this] {
            notes.emplace_back("layout");
            window.controls = {&label};
        };
        window.load = [this] { notes.emplace_back("load"); };
        window.unload = [this] { notes.emplace_back("unload"); };
    }

    Texts notes;
    Label label;
    Window window;
};

TEST_F(WindowTest, WorksAsAValueWithoutAToolkit) {
    window.Show();
    window.ShowInFront();
    window.RepaintNow();
    EXPECT_TRUE(window.IsLoaded());
    window.Unload();
    window.Unload();

    EXPECT_FALSE(window.IsLoaded());
    EXPECT_EQ(notes, (Texts{"layout", "load", "unload"}));
    EXPECT_TRUE(window.controls.empty());
}

TEST_F(WindowTest, IsBuiltBetweenItsLayoutAndItsLoadHandlerAndTornDownAfterItsUnloadHandler) {
    const NotingToolkit toolkitOfTest(notes);
    window.Show();
    window.Show();
    window.Unload();

    EXPECT_EQ(notes, (Texts{"layout", "build", "load", "show", "show", "unload", "tear down"}));
}

TEST_F(WindowTest, EveryShowingLoadsIt) {
    const NotingToolkit toolkitOfTest(notes);
    window.ShowModal();
    window.Unload();
    window.ShowInFront();
    window.Unload();

    EXPECT_EQ(notes, (Texts{"layout", "build", "load", "show modal", "unload", "tear down", "layout", "build", "load",
                            "show in front", "unload", "tear down"}));
}

TEST_F(WindowTest, ItsPlaceBeforeItIsLoadedIsWhereItOpens) {
    const NotingToolkit toolkitOfTest(notes);
    EXPECT_EQ(window.Left(), 0);
    window.MoveTo(1500, -30);
    EXPECT_EQ(window.Left(), 1500);
    EXPECT_EQ(window.Top(), -30);
    window.load = [this] {
        EXPECT_EQ(window.Left(), 1500);
        EXPECT_EQ(window.Top(), -30);
    };
    window.Load();
    window.Unload();
    window.load = nullptr;
    window.Load();

    EXPECT_EQ(window.Left(), 75) << "the desktop places it the next time";
    window.Unload();
}

TEST_F(WindowTest, IsMovedWhereItsWidgetsAre) {
    const NotingToolkit toolkitOfTest(notes);
    window.Load();
    EXPECT_EQ(window.Top(), 150);
    window.MoveTo(15, 30);

    EXPECT_EQ(window.Left(), 15);
    EXPECT_EQ(window.Top(), 30);
    window.Unload();
}

TEST_F(WindowTest, ItsStateIsItsWidgets) {
    const NotingToolkit toolkitOfTest(notes);
    window.SetState(WindowState::Minimised);
    EXPECT_EQ(window.State(), WindowState::Normal) << "not loaded";
    window.Load();
    window.SetState(WindowState::Minimised);
    EXPECT_EQ(window.State(), WindowState::Minimised);
    window.Unload();
    EXPECT_EQ(window.State(), WindowState::Normal);
}

TEST_F(WindowTest, AResizeIsReportedWithTheNewSizeInPlace) {
    std::vector<std::pair<int, int>> sizes;
    window.resize = [&] { sizes.emplace_back(window.Width(), window.Height()); };
    window.Resize(4125, 3425);
    window.ResizeByUser(4125, 3430);

    EXPECT_EQ(sizes, (std::vector<std::pair<int, int>>{{4125, 3425}, {4125, 3430}}));
}

TEST_F(WindowTest, ItsWidgetsAreToldOfTitleSizeAndSwitch) {
    const NotingToolkit toolkitOfTest(notes);
    window.Load();
    notes.clear();
    window.title = "Print data";
    window.enabled = false;
    window.ResizeByUser(1, 1);
    EXPECT_EQ(notes, (Texts{"refresh", "refresh"})) << "a resize by the user is on the screen already";
    window.unload = nullptr;
    window.Unload();
}

}  // namespace
}  // namespace ballhaven::platform
