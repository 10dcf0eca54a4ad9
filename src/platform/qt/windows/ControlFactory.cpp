#include "platform/qt/windows/ControlFactory.h"

#include "platform/controls/CheckBox.h"
#include "platform/controls/DrawingSurface.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextArea.h"
#include "platform/qt/grid/GridWidget.h"
#include "platform/qt/widgets/ButtonWidget.h"
#include "platform/qt/widgets/CheckBoxWidget.h"
#include "platform/qt/widgets/DrawingSurfaceWidget.h"
#include "platform/qt/widgets/DropDownWidget.h"
#include "platform/qt/widgets/FrameWidget.h"
#include "platform/qt/widgets/LabelWidget.h"
#include "platform/qt/widgets/OptionWidget.h"
#include "platform/qt/widgets/StillWidgets.h"
#include "platform/qt/widgets/TextAreaWidget.h"
#include "platform/qt/widgets/TextBoxWidget.h"

namespace ballhaven::platform {

namespace {

// A widget sets `view` in its control; its parent owns it.
template <typename Widget, typename Kind>
void Build(Control& control, QWidget* parent) {
    control.view = new Widget(static_cast<Kind&>(control), parent);
}

}  // namespace

void BuildControl(Control& control, QWidget& clientArea) {
    QWidget* const panel = control.container != nullptr ? dynamic_cast<QWidget*>(control.container->view) : nullptr;
    QWidget* const parent = panel != nullptr ? panel : &clientArea;
    switch (control.kind) {
        case ControlKind::Button:
            return Build<ButtonWidget, Button>(control, parent);
        case ControlKind::CheckBox:
            return Build<CheckBoxWidget, CheckBox>(control, parent);
        case ControlKind::DrawingSurface:
            return Build<DrawingSurfaceWidget, DrawingSurface>(control, parent);
        case ControlKind::DropDownList:
            return Build<DropDownWidget, DropDownList>(control, parent);
        case ControlKind::Frame:
            return Build<FrameWidget, Frame>(control, parent);
        case ControlKind::Grid:
            return Build<GridWidget, Grid>(control, parent);
        case ControlKind::Label:
            return Build<LabelWidget, Label>(control, parent);
        case ControlKind::Line:
            return Build<LineWidget, Line>(control, parent);
        case ControlKind::OptionButton:
            return Build<OptionWidget, OptionButton>(control, parent);
        case ControlKind::Panel:
            return Build<PanelWidget, Panel>(control, parent);
        case ControlKind::Picture:
            return Build<PictureWidget, Picture>(control, parent);
        case ControlKind::TextArea:
            return Build<TextAreaWidget, TextArea>(control, parent);
        case ControlKind::TextBox:
            return Build<TextBoxWidget, TextBox>(control, parent);
    }
}

void PartControl(Control& control) {
    if (auto* const widget = dynamic_cast<QWidget*>(control.view)) {
        widget->blockSignals(true);
    }
    control.view = nullptr;
}

}  // namespace ballhaven::platform
