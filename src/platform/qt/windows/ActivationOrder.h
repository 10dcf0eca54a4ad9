#pragma once

#include <functional>
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

    /// Runs what comes of a window's activation while the toolkit reports it. It still holds the window that was active
    /// before then, so those whose deletion comes due meanwhile, in a box or a window that is opened, are kept till
    /// after.
    void Report(const std::function<void()>& activation);

    /// Whether a window whose deletion is due is kept for now, and deleted later.
    [[nodiscard]] bool Keeps(QWidget& window);

  private:
    std::vector<QWidget*> order;
    const QWidget* active = nullptr;
    int reports = 0;  ///< activations that are being reported, one within the other
    std::vector<QWidget*> kept;
};

}  // namespace ballhaven::platform
