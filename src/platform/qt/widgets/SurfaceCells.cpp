#include "platform/qt/widgets/SurfaceCells.h"

#include "platform/Guard.h"
#include "platform/qt/widgets/Conversions.h"
#include "platform/qt/widgets/DrawingSurfaceWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <map>
#include <vector>

namespace ballhaven::platform {

namespace {

std::vector<SurfaceCell> CellsOf(const DrawingSurface& surface) {
    std::vector<SurfaceCell> cells;
    if (surface.cells) {
        RunGuardedReading([&] { cells = surface.cells(); });
    }
    return cells;
}

/// A cell is told by its number, so that it says what is drawn at the time.
class ToldCell final : public QAccessibleInterface {
  public:
    ToldCell(DrawingSurfaceWidget& surfaceWidget, int cellNumber) : widget(&surfaceWidget), number(cellNumber) {}

    [[nodiscard]] int Number() const { return number; }

    [[nodiscard]] bool isValid() const override {
        return !widget.isNull() && number < static_cast<int>(CellsOf(widget->Shown()).size());
    }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget);
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? ToQString(Cell().name) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const PixelRect place = Cell().place;
        return {widget->mapToGlobal(QPoint(place.left, place.top)),
                QSize(place.right - place.left, place.bottom - place.top)};
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        state.selectable = true;
        state.selected = isValid() && Cell().selected;
        return state;
    }

  private:
    [[nodiscard]] SurfaceCell Cell() const { return CellsOf(widget->Shown()).at(static_cast<std::size_t>(number)); }

    QPointer<DrawingSurfaceWidget> widget;
    int number;
};

class ToldSurface final : public QAccessibleWidget {
  public:
    explicit ToldSurface(DrawingSurfaceWidget& surface) : QAccessibleWidget(&surface, QAccessible::Grouping) {}

    ~ToldSurface() override {
        for (const auto& [number, id] : cells) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    [[nodiscard]] int childCount() const override { return static_cast<int>(CellsOf(Surface().Shown()).size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        const auto [known, isNew] = cells.try_emplace(index);
        if (isNew) {
            known->second = QAccessible::registerAccessibleInterface(new ToldCell(Surface(), index));
        }
        return QAccessible::accessibleInterface(known->second);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* cell) const override {
        const auto* const told = dynamic_cast<const ToldCell*>(cell);
        return told == nullptr ? -1 : told->Number();
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = Surface().mapFromGlobal(QPoint(x, y));
        const std::vector<SurfaceCell> all = CellsOf(Surface().Shown());
        for (std::size_t number = 0; number < all.size(); ++number) {
            if (all[number].place.Holds({place.x(), place.y()})) {
                return child(static_cast<int>(number));
            }
        }
        return nullptr;
    }

  private:
    [[nodiscard]] DrawingSurfaceWidget& Surface() const { return static_cast<DrawingSurfaceWidget&>(*widget()); }

    mutable std::map<int, QAccessible::Id> cells;
};

QAccessibleInterface* TellOf(const QString&, QObject* object) {
    auto* const surface = dynamic_cast<DrawingSurfaceWidget*>(object);
    return surface == nullptr ? nullptr : new ToldSurface(*surface);
}

}  // namespace

void InstallSurfaceCells() {
    QAccessible::installFactory(TellOf);
}

}  // namespace ballhaven::platform
