#include "platform/qt/windows/ActivationOrder.h"

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

}  // namespace ballhaven::platform
