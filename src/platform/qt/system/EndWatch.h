#pragma once

#include <QObject>
#include <QSocketNotifier>

class QGuiApplication;

namespace ballhaven::platform {

/// Watches for what wants the program to end from outside, and closes it in order then: the signals for it, the end of
/// the desktop's session, which is announced before it comes, and the end of the display.
class EndWatch final : public QObject {
  public:
    explicit EndWatch(QGuiApplication& application);

    /// A process that ends on its own from now on has nothing to save.
    ~EndWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QSocketNotifier endSignals;
};

}  // namespace ballhaven::platform
