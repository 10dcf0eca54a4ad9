#include "platform/qt/widgets/FrameWidget.h"

#include "platform/qt/widgets/Conversions.h"

namespace ballhaven::platform {

FrameWidget::FrameWidget(Frame& shownFrame, QWidget* parent) : ControlWidget(shownFrame, parent), frame(shownFrame) {
    Refresh();
}

void FrameWidget::Refresh() {
    ShowCommon(frame, *this, *frame.caption);
    setTitle(ToQString(*frame.caption));
}

}  // namespace ballhaven::platform
