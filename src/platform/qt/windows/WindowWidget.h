#pragma once

#include "platform/controls/Window.h"

#include <QMainWindow>

class QEventLoop;

namespace ballhaven::platform {

class ActivationOrder;

/// Shows a window: a menu bar above a client area in which the controls stand. The client area's size is the outer
/// size of the window less the frame that the program reckons with, whatever the desktop's own frame takes.
class WindowWidget final : public QMainWindow, public WindowView {
  public:
    WindowWidget(Window& shownWindow, ActivationOrder& activationOrder);

    void Refresh() override;
    void Show() override;
    void ShowModal() override;
    void ShowInFront() override;
    void RepaintNow() override;
    void MoveTo(int left, int top) override;
    [[nodiscard]] int Left() const override;
    [[nodiscard]] int Top() const override;
    void SetState(WindowState state) override;
    [[nodiscard]] WindowState State() const override;

    /// Parts the window and its controls from their widgets and hides the widget, whose deletion is the caller's: one
    /// of its handlers may be running. Ends a modal showing. The focus, if this window has it or waits for it, goes to
    /// the window that was active before.
    void TearDown();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QSize ClientSize() const;
    void ShowSize();
    void LimitSize(const QSize& wanted, int menuHeight);
    void StartTimers();
    void PlaceAlignedPanels(const QSize& client);
    void FollowClientArea();
    void BecomeActive();
    [[nodiscard]] bool IsBehindModalWindow() const;
    void HandFocusOn();

    Window& window;
    ActivationOrder& activations;
    QWidget* clientArea;
    QSize shownClient;  ///< the size of the client area that the value knows of
    QEventLoop* modalLoop = nullptr;
    bool everActive = false;
    bool focusLost = false;  ///< since it was last active, other than to what is modal over it
};

}  // namespace ballhaven::platform
