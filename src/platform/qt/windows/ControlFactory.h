#pragma once

class QWidget;

namespace ballhaven::platform {

class Control;

/// Builds the widget of a control in its container or, where it has none, in the window's client area, and sets `view`
/// in the control. A container is built before what stands on it.
void BuildControl(Control& control, QWidget& clientArea);

/// Parts a control from its widget, which says nothing from then on and is left to the window to delete.
void PartControl(Control& control);

}  // namespace ballhaven::platform
