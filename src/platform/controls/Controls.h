#pragma once

#include "platform/controls/Color.h"
#include "platform/controls/Control.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace ballhaven::platform {

/// A handler of a notice; empty when nobody listens. Set once by the wiring.
using Handler = std::function<void()>;

/// How a text lies in its place.
enum class TextAlignment { Left, Centre, Right };

/// A line of text.
class Label : public Control {
  public:
    Label() : Control(ControlKind::Label) {}

    Property<std::string> text{*this};
    Property<bool> bold{*this, false};
    Property<bool> bordered{*this, false};
    Property<TextAlignment> alignment{*this, TextAlignment::Left};
    Property<int> fontHeight{*this, 11};  ///< in pixels

    /// A label with the colour of its surroundings has `buttonFaceColor`, which is not painted.
    Property<Color> background{*this, buttonFaceColor};
    Property<Color> foreground{*this, windowTextColor};
};

/// A closed list of which one entry, or none, is selected.
class DropDownList : public Control {
  public:
    DropDownList() : Control(ControlKind::DropDownList) {}

    /// Replaces the entries; nothing is selected then. Raises no notice.
    void Fill(std::vector<std::string> texts);
    [[nodiscard]] const std::vector<std::string>& Entries() const { return entries; }

    /// Index of the selected entry from 0, -1 for none.
    [[nodiscard]] int Selected() const { return selected; }

    /// Text of the selected entry, empty for none.
    [[nodiscard]] std::string Text() const;

    /// Selects an entry; what lies outside the list is held at its ends, -1 selects none. Raises `change` when the
    /// selection becomes another one.
    void Select(int index);

    /// The user's choice of an entry, which raises `change` also for the entry that is selected already.
    void SelectByUser(int index);

    Handler change;

  private:
    std::vector<std::string> entries;
    int selected = -1;
};

/// One of a group of buttons of which at most one is chosen.
class OptionButton : public Control {
  public:
    OptionButton() : Control(ControlKind::OptionButton) {}

    [[nodiscard]] bool IsChosen() const { return chosen; }

    /// Chooses this button and no other of its group. Raises `click` when it was not chosen before.
    void Choose();

    /// The user's choice of this button, which raises `click` also when it is chosen already.
    void ChooseByUser();

    Property<std::string> caption{*this};
    Handler click;

    /// The buttons among which one is chosen, this one included. Fixed by the layout.
    std::span<OptionButton> group;

  private:
    bool chosen = false;
};

/// A button of the mouse.
enum class MouseButton { Left, Right, Other };

/// The shape of the mouse pointer over a control.
enum class PointerShape { Default, IBeam, Cross };

/// The marked part of a text, in characters; with a length of 0 it is where typing goes on.
struct TextSelection {
    int start = 0;
    int length = 0;

    bool operator==(const TextSelection&) const = default;
};

/// A box in which the user types one line.
class TextBox : public Control {
  public:
    TextBox() : Control(ControlKind::TextBox) {}

    /// Marks a part of the text; what of it lies beyond the text is left out.
    void Select(TextSelection part);
    [[nodiscard]] TextSelection Selection() const;

    /// The user's change of the selection, which the widget shows already.
    void SelectByUser(TextSelection part) { selection = part; }

    Property<std::string> text{*this};
    Property<int> maxLength{*this, 0};  ///< in characters; 0 for no limit
    Property<bool> locked{*this, false};
    Property<PointerShape> pointer{*this, PointerShape::Default};

    /// The ground behind the text, also while the box is switched off; `windowColor` is the toolkit's own, which is
    /// greyed then.
    Property<Color> background{*this, windowColor};

    /// A character key going down, '\r' for Enter; true when it has been served and the box does nothing with it.
    std::function<bool(char key)> keyPress;

    /// A click of the left mouse button, in a locked box too.
    Handler click;

  private:
    TextSelection selection;
};

/// A button with a caption, a picture or both.
class Button : public Control {
  public:
    Button() : Control(ControlKind::Button) {}

    Property<std::string> caption{*this};

    /// Name of the picture among the program's resources, such as "print"; empty for none.
    Property<std::string> picture{*this};

    /// Whether the keyboard reaches the button and presses it.
    Property<bool> answersKeys{*this, true};
    Handler click;

    /// The release over the button of a mouse button that went down there.
    std::function<void(MouseButton mouseButton)> mouseUp;
};

/// A panel that carries other controls.
class Panel : public Control {
  public:
    enum class Alignment { None, Top, Left };

    Panel() : Control(ControlKind::Panel) {}

    /// An aligned panel follows its window's size: to the top over the whole width, or to the left over the height
    /// that remains.
    Property<Alignment> alignment{*this, Alignment::None};
};

/// A rule from the left top corner of its bounds to the right bottom one.
class Line : public Control {
  public:
    Line() : Control(ControlKind::Line) {}
};

/// A picture.
class Picture : public Control {
  public:
    Picture() : Control(ControlKind::Picture) {}

    /// Name of the picture among the program's resources; empty for none.
    Property<std::string> picture{*this};

    /// A click of the left mouse button, with the place of its release in twips from the picture's top left corner. On
    /// finely scaled screens a place can be a fraction of a twip.
    std::function<void(double x, double y)> click;
};

/// Ticks for as long as its window is loaded.
class Timer {
  public:
    std::string name;
    int interval = 0;  ///< in milliseconds
    Handler tick;
};

}  // namespace ballhaven::platform
