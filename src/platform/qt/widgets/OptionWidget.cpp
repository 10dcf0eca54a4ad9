#include "platform/qt/widgets/OptionWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QKeyEvent>

#include <algorithm>

namespace ballhaven::platform {

OptionWidget::OptionWidget(OptionButton& shownOption, QWidget* parent)
    : ControlWidget(shownOption, parent), option(shownOption) {
    setAutoExclusive(false);
    connect(this, &QRadioButton::clicked, this, [this] { Report([this] { option.ChooseByUser(); }); });
    Refresh();
}

void OptionWidget::Refresh() {
    ShowCommon(option, *this, *option.caption);
    setText(ToQString(*option.caption));
    setChecked(option.IsChosen());
    // The keyboard stops at a group once: at its chosen button, at any where none is.
    const bool isStop = option.IsChosen() || std::ranges::none_of(option.group, &OptionButton::IsChosen);
    setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
}

// The value decides which button of the group is chosen, and the widget follows it.
void OptionWidget::nextCheckState() {}

void OptionWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            ChooseNeighbour(-1);
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            ChooseNeighbour(1);
            break;
        default:
            QRadioButton::keyPressEvent(event);
    }
}

void OptionWidget::ChooseNeighbour(int step) {
    const int count = static_cast<int>(option.group.size());
    int index = static_cast<int>(&option - option.group.data());
    for (int tried = 1; tried < count; ++tried) {
        index = (index + step + count) % count;
        OptionButton& neighbour = option.group[static_cast<std::size_t>(index)];
        if (*neighbour.visible && *neighbour.enabled) {
            neighbour.TakeFocus();
            Report([&neighbour] { neighbour.ChooseByUser(); });
            return;
        }
    }
}

}  // namespace ballhaven::platform
