#include "platform/qt/windows/ActivationOrder.h"

#include <QCoreApplication>
#include <QWidget>

#include <utility>

namespace ballhaven::platform {

bool ActivationOrder::Activate(QWidget& window) {
    if (active == &window) {
        return false;
    }
    std::erase(order, &window);
    order.push_back(&window);
    active = &window;
    return true;
}

void ActivationOrder::Remove(const QWidget& window) {
    std::erase(order, &window);
    if (active == &window) {
        active = nullptr;
    }
}

QWidget* ActivationOrder::Front() const {
    return order.empty() ? nullptr : order.back();
}

void ActivationOrder::Report(const std::function<void()>& activation) {
    ++reports;
    activation();
    --reports;
    if (reports == 0 && !kept.empty()) {
        QMetaObject::invokeMethod(
            qApp, [going = std::exchange(kept, {})] { qDeleteAll(going); }, Qt::QueuedConnection);
    }
}

bool ActivationOrder::Keeps(QWidget& window) {
    if (reports > 0) {
        kept.push_back(&window);
    }
    return reports > 0;
}

}  // namespace ballhaven::platform
