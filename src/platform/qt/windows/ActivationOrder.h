#pragma once

#include <vector>

class QWidget;

namespace ballhaven::platform {

/// The windows of the program in the order in which they were last active. Message boxes and the windows of other
/// programs are not in it: who comes back from them has been active all along.
class ActivationOrder {
  public:
    /// Notes that a window is active; true when another one of the program, or none, was active before.
    bool Activate(QWidget& window);

    /// Takes a window out that is going. Nobody counts as active then, until the next window comes to the front.
    void Remove(const QWidget& window);

    /// The window that was active last, null for none.
    [[nodiscard]] QWidget* Front() const;

  private:
    std::vector<QWidget*> order;
    const QWidget* active = nullptr;
};

}  // namespace ballhaven::platform
