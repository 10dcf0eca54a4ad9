#include "platform/qt/windows/WindowWidget.h"

#include "platform/Guard.h"
#include "platform/Pointer.h"
#include "platform/qt/widgets/Conversions.h"
#include "platform/qt/windows/ActivationOrder.h"
#include "platform/qt/windows/ControlFactory.h"
#include "platform/qt/windows/MenuItemAction.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace ballhaven::platform {

WindowWidget::WindowWidget(Window& shownWindow, ActivationOrder& activationOrder)
    : window(shownWindow), activations(activationOrder), clientArea(new QWidget(this)) {
    setObjectName(ToQString(window.name));
    setContextMenuPolicy(Qt::NoContextMenu);
    clientArea->setObjectName(QStringLiteral("clientArea"));
    setCentralWidget(clientArea);
    if (!window.menus.empty()) {
        menuBar()->setObjectName(QStringLiteral("menuBar"));
        FillMenuBar(*menuBar(), window.menus);
        menuBar()->ensurePolished();
    }
    for (Control* control : window.controls) {
        BuildControl(*control, *clientArea);
    }
    StartTimers();
    clientArea->installEventFilter(this);
    if (window.fixedSize) {
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    }
    Refresh();
}

void WindowWidget::StartTimers() {
    for (const Timer* timer : window.timers) {
        auto* const ticking = new QTimer(this);
        ticking->setObjectName(ToQString(timer->name));
        connect(ticking, &QTimer::timeout, this, [this, timer, ticking] {
            if (window.view != this || !timer->tick) {
                return;
            }
            // The next tick waits for the end of this one, which may show a message box and let events run meanwhile.
            ticking->stop();
            const QPointer<QTimer> waiting(ticking);
            RunGuarded(timer->tick);
            if (waiting) {
                waiting->start();
            }
        });
        ticking->start(timer->interval);
    }
}

QSize WindowWidget::ClientSize() const {
    return {std::max(0, ToPixels(window.Width() - Window::frameWidth)),
            std::max(0, ToPixels(window.Height() - window.frame))};
}

void WindowWidget::Refresh() {
    setWindowTitle(ToQString(*window.title));
    setEnabled(*window.enabled);
    if (shownClient != ClientSize()) {
        ShowSize();
    }
}

void WindowWidget::ShowSize() {
    shownClient = ClientSize();
    const int menuHeight = window.menus.empty() ? 0 : menuBar()->heightForWidth(shownClient.width());
    const QSize wanted(shownClient.width(), shownClient.height() + menuHeight);
    LimitSize(wanted, menuHeight);
    resize(wanted);
    PlaceAlignedPanels(shownClient);
}

void WindowWidget::LimitSize(const QSize& wanted, int menuHeight) {
    if (window.fixedSize) {
        setFixedSize(wanted);
        return;
    }
    const auto pixels = [](int outer, int frame, int unlimited) {
        return outer > 0 ? std::max(0, ToPixels(outer - frame)) : unlimited;
    };
    setMinimumSize(pixels(window.smallestSize.width, Window::frameWidth, 0),
                   pixels(window.smallestSize.height, window.frame - ToTwips(menuHeight), 0));
    setMaximumSize(pixels(window.largestSize.width, Window::frameWidth, QWIDGETSIZE_MAX),
                   pixels(window.largestSize.height, window.frame - ToTwips(menuHeight), QWIDGETSIZE_MAX));
}

void WindowWidget::PlaceAlignedPanels(const QSize& client) {
    const Bounds room{0, 0, ToTwips(client.width()), ToTwips(client.height())};
    int top = 0;
    int left = 0;
    for (Control* control : window.controls) {
        if (control->kind != ControlKind::Panel || !*control->visible) {
            continue;
        }
        Panel& panel = static_cast<Panel&>(*control);
        if (*panel.alignment == Panel::Alignment::Top) {
            panel.bounds = Bounds{0, top, room.width, panel.bounds->height};
            top += panel.bounds->height;
        } else if (*panel.alignment == Panel::Alignment::Left) {
            panel.bounds = Bounds{left, top, panel.bounds->width, room.height - top};
            left += panel.bounds->width;
        }
    }
}

bool WindowWidget::eventFilter(QObject* watched, QEvent* event) {
    if (watched == clientArea && event->type() == QEvent::Resize && isVisible()) {
        FollowClientArea();
    }
    return QMainWindow::eventFilter(watched, event);
}

// A size that the program has set is there already, to the twip; any other one comes from the user or the desktop.
void WindowWidget::FollowClientArea() {
    if (window.view != this || clientArea->size() == ClientSize()) {
        return;
    }
    shownClient = clientArea->size();
    PlaceAlignedPanels(shownClient);
    RunGuarded([this] {
        const int width = ToTwips(clientArea->width()) + Window::frameWidth;
        const int height = ToTwips(clientArea->height()) + window.frame;
        window.ResizeByUser(width, height);
    });
}

// The first activation comes before the first painting, so that what it loads is painted at once.
void WindowWidget::Show() {
    show();
    if (!everActive) {
        BecomeActive();
    }
}

void WindowWidget::ShowModal() {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowModality(Qt::ApplicationModal);
    if (QWidget* const front = activations.Front()) {
        winId();
        windowHandle()->setTransientParent(front->windowHandle());
    }
    show();
    const WaitPointerLifted lifted;
    QEventLoop loop;
    modalLoop = &loop;
    loop.exec();  // the widget may be gone after this
}

void WindowWidget::ShowInFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void WindowWidget::SetState(WindowState state) {
    const Qt::WindowStates others = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    switch (state) {
        case WindowState::Normal:
            return setWindowState(others);
        case WindowState::Minimised:
            return setWindowState(others | Qt::WindowMinimized);
        case WindowState::Maximised:
            return setWindowState(others | Qt::WindowMaximized);
    }
}

WindowState WindowWidget::State() const {
    if (isMinimized()) {
        return WindowState::Minimised;
    }
    return isMaximized() ? WindowState::Maximised : WindowState::Normal;
}

void WindowWidget::RepaintNow() {
    repaint();
}

void WindowWidget::MoveTo(int left, int top) {
    move(ToPixels(left), ToPixels(top));
}

int WindowWidget::Left() const {
    return ToTwips(x());
}

int WindowWidget::Top() const {
    return ToTwips(y());
}

void WindowWidget::TearDown() {
    window.view = nullptr;
    for (Control* control : window.controls) {
        PartControl(*control);
    }
    for (const Menu* menu : window.menus) {
        for (MenuItem* item : menu->items) {
            item->view = nullptr;
        }
    }
    const bool hadFocus = !focusLost && !IsBehindModalWindow() && (modalLoop != nullptr || activations.Front() == this);
    activations.Remove(*this);
    hide();
    if (modalLoop != nullptr) {
        modalLoop->quit();
        modalLoop = nullptr;
    }
    if (hadFocus) {
        HandFocusOn();
    }
}

bool WindowWidget::IsBehindModalWindow() const {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != this;
}

// A desktop that is behind may not have reported this window as active when it closes, nor then the next one again,
// which has been active for it all along.
void WindowWidget::HandFocusOn() {
    auto* const next = static_cast<WindowWidget*>(activations.Front());
    if (next == nullptr) {
        return;
    }
    next->activateWindow();
    QMetaObject::invokeMethod(
        next,
        [next] {
            if (next->isActiveWindow()) {
                next->BecomeActive();
            }
        },
        Qt::QueuedConnection);
}

// The window goes when the program has unloaded it, not before.
void WindowWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (window.view == this && *window.enabled) {
        RunGuarded([this] { window.Unload(); });
    }
}

void WindowWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && window.view == this && window.escape) {
        RunGuarded(window.escape);
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void WindowWidget::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // Its first activation does not wait for the desktop, which may never report one.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!everActive) {
                BecomeActive();
            }
        },
        Qt::QueuedConnection);
}

bool WindowWidget::event(QEvent* event) {
    if (event->type() == QEvent::DeferredDelete && activations.Keeps(*this)) {
        return true;
    }
    const bool served = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate) {
        focusLost = false;
        activations.Report([this] { BecomeActive(); });
    } else if (event->type() == QEvent::WindowDeactivate) {
        focusLost = !IsBehindModalWindow();  // which gives the focus back when it closes
        if (window.view == this && window.deactivate) {
            RunGuarded(window.deactivate);
        }
    }
    return served;
}

// A window behind a modal one is not active, even where the desktop reports so late that it was.
void WindowWidget::BecomeActive() {
    if (window.view != this || IsBehindModalWindow()) {
        return;
    }
    everActive = true;
    if (activations.Activate(*this) && window.activate) {
        RunGuarded(window.activate);
    }
}

}  // namespace ballhaven::platform
