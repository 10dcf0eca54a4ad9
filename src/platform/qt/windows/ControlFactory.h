#pragma once

class QWidget;

namespace ballhaven::platform {

class Control;

/// Builds the widget of a control in its panel or, where it has none, in the window's client area, and sets `view` in
/// the control. A panel is built before what stands on it.
void BuildControl(Control& control, QWidget& clientArea);

/// Parts a control from its widget, which says nothing from then on and is left to the window to delete.
void PartControl(Control& control);

}  // namespace ballhaven::platform
