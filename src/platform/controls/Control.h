#pragma once

#include "platform/controls/Geometry.h"
#include "platform/controls/Property.h"

#include <optional>
#include <string>

namespace ballhaven::platform {

enum class ControlKind {
    Button,
    CheckBox,
    DrawingSurface,
    DropDownList,
    Frame,
    Grid,
    Label,
    Line,
    OptionButton,
    Panel,
    Picture,
    TextArea,
    TextBox
};

/// What every control's widget can do besides showing the control.
class ControlView : public View {
  public:
    virtual void TakeFocus() = 0;
    virtual void BringToFront() = 0;

    /// The control's place on the screen, in twips.
    [[nodiscard]] virtual Bounds ScreenPlace() const = 0;
};

/// What all controls have in common. A control is a value that works without a window: logic sets and reads it, and a
/// widget shows it while its window is loaded.
class Control : public Shown {
  public:
    explicit Control(ControlKind controlKind) : kind(controlKind) {}

    /// Changes one measure of `bounds`, in twips.
    void SetLeft(int left);
    void SetTop(int top);
    void SetWidth(int width);
    void SetHeight(int height);

    /// Gives the control the keyboard. Without a window nothing happens.
    void TakeFocus();

    /// Puts the control before its siblings. Without a window nothing happens.
    void BringToFront();

    /// The control's place on the screen, in twips; none without a window.
    [[nodiscard]] std::optional<Bounds> ScreenPlace() const;

    const ControlKind kind;

    /// The control's name with its index, such as "cboList(0)"; its widget bears it too.
    std::string name;

    /// The panel or frame on which the control stands, null for the window itself. Fixed by the layout.
    Control* container = nullptr;

    /// The label that names the control, built before it; null for none. Fixed by the layout.
    const Control* label = nullptr;

    Property<Bounds> bounds{*this};
    Property<bool> visible{*this, true};
    Property<bool> enabled{*this, true};
    Property<std::string> toolTip{*this};

    /// What a person would call the control where its own text does not say it.
    Property<std::string> accessibleName{*this};
};

}  // namespace ballhaven::platform
