#include "platform/qt/widgets/CheckBoxWidget.h"

#include "platform/qt/widgets/Conversions.h"

namespace ballhaven::platform {

CheckBoxWidget::CheckBoxWidget(CheckBox& shownBox, QWidget* parent) : ControlWidget(shownBox, parent), box(shownBox) {
    connect(this, &QCheckBox::clicked, this, [this](bool ticked) { Report([this, ticked] { box.Tick(ticked); }); });
    Refresh();
}

void CheckBoxWidget::Refresh() {
    ShowCommon(box, *this, *box.caption);
    setText(ToQString(*box.caption));
    setChecked(box.IsTicked());
}

}  // namespace ballhaven::platform
