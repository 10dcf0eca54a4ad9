#pragma once

#include <QAccessible>

#include <functional>
#include <map>

namespace ballhaven::platform {

/// A cell that assistive tools are told of, without a widget of its own and without parts.
class ToldCell : public QAccessibleInterface {
  public:
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
    void setText(QAccessible::Text, const QString&) override {}

    /// Its number at present among the cells of its parent.
    [[nodiscard]] virtual int Number() const = 0;
};

/// The cells of one parent by their numbers. Each comes into being when it is asked for first, and goes with the
/// parent.
class ToldCells {
  public:
    ToldCells() = default;
    ~ToldCells();
    ToldCells(const ToldCells&) = delete;
    ToldCells& operator=(const ToldCells&) = delete;

    /// The cell of a key that stays its own for as long as the parent lives; a new one comes from `make`.
    [[nodiscard]] QAccessibleInterface* At(int key, const std::function<ToldCell*()>& make);

    /// The number of a cell; -1 for what is none.
    [[nodiscard]] static int NumberOf(const QAccessibleInterface* cell);

  private:
    std::map<int, QAccessible::Id> cells;
};

}  // namespace ballhaven::platform
