#include "platform/qt/widgets/SurfaceCells.h"

#include "platform/qt/widgets/Conversions.h"
#include "platform/qt/widgets/DrawingSurfaceWidget.h"
#include "platform/qt/widgets/ToldCells.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace ballhaven::platform {

namespace {

/// A cell is told by its number, so that it says what is drawn at the time.
class DrawnCell final : public ToldCell {
  public:
    DrawnCell(DrawingSurfaceWidget& surfaceWidget, int cellNumber) : widget(&surfaceWidget), number(cellNumber) {}

    [[nodiscard]] int Number() const override { return number; }
    [[nodiscard]] bool isValid() const override {
        return !widget.isNull() && number < static_cast<int>(widget->Cells().size());
    }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? ToQString(Cell().name) : QString();
    }
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
        state.focusable = true;
        state.focused = state.selected && widget->hasFocus();
        return state;
    }

  private:
    [[nodiscard]] SurfaceCell Cell() const { return widget->Cells().at(static_cast<std::size_t>(number)); }

    QPointer<DrawingSurfaceWidget> widget;
    int number;
};

class ToldSurface final : public QAccessibleWidget {
  public:
    explicit ToldSurface(DrawingSurfaceWidget& surface) : QAccessibleWidget(&surface, QAccessible::Grouping) {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(Surface().Cells().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return 0 <= index && index < childCount()
                   ? cells.At(index, [this, index] { return new DrawnCell(Surface(), index); })
                   : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* cell) const override {
        return ToldCells::NumberOf(cell);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = Surface().mapFromGlobal(QPoint(x, y));
        const std::vector<SurfaceCell> all = Surface().Cells();
        const auto found = std::ranges::find_if(all, [place](const SurfaceCell& cell) {
            return cell.place.Holds({place.x(), place.y()});
        });
        return found == all.end() ? nullptr : child(static_cast<int>(found - all.begin()));
    }

    // Where a cell is selected, the keyboard is on it.
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        QAccessibleInterface* const selected = Surface().hasFocus() ? child(Surface().SelectedCell()) : nullptr;
        return selected == nullptr ? QAccessibleWidget::focusChild() : selected;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && Surface().SelectedCell() < 0;
        return state;
    }

  private:
    [[nodiscard]] DrawingSurfaceWidget& Surface() const { return static_cast<DrawingSurfaceWidget&>(*widget()); }

    mutable ToldCells cells;
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
