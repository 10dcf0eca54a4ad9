#include "platform/qt/widgets/LabelWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QFontMetrics>

namespace ballhaven::platform {

namespace {

Qt::Alignment AlignmentOf(TextAlignment alignment) {
    switch (alignment) {
        case TextAlignment::Centre:
            return Qt::AlignHCenter | Qt::AlignTop;
        case TextAlignment::Right:
            return Qt::AlignRight | Qt::AlignTop;
        case TextAlignment::Left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignTop;
}

}  // namespace

LabelWidget::LabelWidget(Label& shownLabel, QWidget* parent) : ControlWidget(shownLabel, parent), label(shownLabel) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(0);
    setIndent(0);
    Refresh();
}

void LabelWidget::Refresh() {
    ShowCommon(label, *this, *label.text);
    setText(ToQString(*label.text));
    setAlignment(AlignmentOf(*label.alignment));
    QFont ownFont = font();
    ownFont.setBold(*label.bold);
    ownFont.setPixelSize(*label.fontHeight);
    setFont(ownFont);
    setFrameStyle(*label.bordered ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
    ShowColors();
    GrowWithText();
}

void LabelWidget::ShowColors() {
    QPalette colors = palette();
    colors.setColor(QPalette::Window, ToQColor(*label.background));
    colors.setColor(QPalette::WindowText, ToQColor(*label.foreground));
    setPalette(colors);
    setAutoFillBackground(*label.background != buttonFaceColor);
}

void LabelWidget::GrowWithText() {
    if (text().isEmpty()) {
        return;
    }
    const int frame = 2 * frameWidth();
    const QRect room(0, 0, width() - frame, 0);
    const QRect needed = QFontMetrics(font()).boundingRect(room, Qt::TextWordWrap, text());
    resize(size().expandedTo(needed.size() + QSize(frame, frame)));
}

}  // namespace ballhaven::platform
