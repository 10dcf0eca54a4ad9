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
            std::max(0, ToPixels(window.Height() - Window::frameHeight))};
}

void WindowWidget::Refresh() {
    setWindowTitle(ToQString(*window.title));
    const QSize client = ClientSize();
    const int menuHeight = window.menus.empty() ? 0 : menuBar()->heightForWidth(client.width());
    resize(client.width(), client.height() + menuHeight);
    PlaceAlignedPanels(client);
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
    PlaceAlignedPanels(clientArea->size());
    RunGuarded([this] {
        const int width = ToTwips(clientArea->width()) + Window::frameWidth;
        const int height = ToTwips(clientArea->height()) + Window::frameHeight;
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
        for (MenuItem& item : menu->items) {
            item.view = nullptr;
        }
    }
    const bool wasActive = isActiveWindow();
    activations.Remove(*this);
    hide();
    if (modalLoop != nullptr) {
        modalLoop->quit();
        modalLoop = nullptr;
    }
    if (QWidget* const next = activations.Front(); next != nullptr && wasActive) {
        next->activateWindow();
    }
}

// The window goes when the program has unloaded it, not before.
void WindowWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (window.view == this) {
        RunGuarded([this] { window.Unload(); });
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
    const bool served = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate) {
        BecomeActive();
    }
    return served;
}

// A window behind a modal one is not active, even where the desktop reports so late that it was.
void WindowWidget::BecomeActive() {
    const QWidget* const modal = QApplication::activeModalWidget();
    if (window.view != this || (modal != nullptr && modal != this)) {
        return;
    }
    everActive = true;
    if (activations.Activate(*this) && window.activate) {
        RunGuarded(window.activate);
    }
}

}  // namespace ballhaven::platform
