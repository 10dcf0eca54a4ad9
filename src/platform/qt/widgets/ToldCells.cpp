#include "platform/qt/widgets/ToldCells.h"

namespace ballhaven::platform {

ToldCells::~ToldCells() {
    for (const auto& [key, id] : cells) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* ToldCells::At(int key, const std::function<ToldCell*()>& make) {
    const auto [known, isNew] = cells.try_emplace(key);
    if (isNew) {
        known->second = QAccessible::registerAccessibleInterface(make());
    }
    return QAccessible::accessibleInterface(known->second);
}

int ToldCells::NumberOf(const QAccessibleInterface* cell) {
    const auto* const told = dynamic_cast<const ToldCell*>(cell);
    return told == nullptr ? -1 : told->Number();
}

}  // namespace ballhaven::platform
