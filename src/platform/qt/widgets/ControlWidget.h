#pragma once

#include "platform/Guard.h"
#include "platform/controls/Control.h"

#include <QMouseEvent>
#include <QWidget>

#include <functional>
#include <string>

namespace ballhaven::platform {

/// Shows in a widget what all controls have in common: place, visibility, tool tip and names. A control without an
/// accessible name of its own is called by its text if that holds a letter or a digit, else by its tool tip.
void ShowCommon(const Control& control, QWidget& widget, const std::string& ownText = {});

/// Lets the label of a control, where it has one that is on show, be known as the name of its widget.
void NameByLabel(const Control& control, QWidget& widget);

/// Whether the release of a mouse button over a widget ends a click of it: the left button's, within the widget.
[[nodiscard]] bool IsClick(const QMouseEvent& release, const QWidget& widget);

/// A widget's place on the screen, in twips.
[[nodiscard]] Bounds ScreenPlaceOf(const QWidget& widget);

/// A widget that shows a control: `Widget` is the toolkit's class for its kind, and `ShownView` what it can do.
/// Ends with its parent widget.
template <typename Widget, typename ShownView = ControlView>
class ControlWidget : public Widget, public ShownView {
  public:
    ControlWidget(Control& shownControl, QWidget* parent) : Widget(parent), shown(shownControl) {
        shown.view = this;
        NameByLabel(shown, *this);
    }

    void TakeFocus() override { this->setFocus(Qt::OtherFocusReason); }
    void BringToFront() override { this->raise(); }
    [[nodiscard]] Bounds ScreenPlace() const override { return ScreenPlaceOf(*this); }

  protected:
    /// Runs what the user's act leads to, under the guard. A widget whose window is torn down already leads to nothing.
    void Report(const std::function<void()>& act) {
        if (shown.view == this) {
            RunGuarded(act);
        }
    }

    /// Runs what draws the control and changes nothing.
    void ReportReading(const std::function<void()>& reading) {
        if (shown.view == this) {
            RunGuardedReading(reading);
        }
    }

  private:
    Control& shown;
};

}  // namespace ballhaven::platform
