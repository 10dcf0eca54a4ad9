#include "platform/qt/system/Appearance.h"

#include "platform/qt/widgets/BuiltPicture.h"
#include "platform/qt/widgets/PlainScrollBarStyle.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>

namespace ballhaven::platform {

namespace {

constexpr int fontHeight = 11;  // pixels

struct PaletteRow {
    QPalette::ColorRole role;
    QRgb color;
    QRgb disabledColor;
};

constexpr PaletteRow paletteRows[] = {
    {QPalette::Window, 0xFFEBE8E1, 0xFFEBE8E1},  // the face of windows and buttons
    {QPalette::Button, 0xFFEBE8E1, 0xFFEBE8E1},
    {QPalette::Base, 0xFFFFFFFF, 0xFFF3F1EC},  // lists and boxes
    {QPalette::AlternateBase, 0xFFF5F3EE, 0xFFF3F1EC},
    {QPalette::WindowText, 0xFF000000, 0xFF8C8A84},
    {QPalette::ButtonText, 0xFF000000, 0xFF8C8A84},
    {QPalette::Text, 0xFF000000, 0xFF8C8A84},
    {QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::PlaceholderText, 0xFF8C8A84, 0xFF8C8A84},
    {QPalette::Light, 0xFFFCFBF9, 0xFFFCFBF9},
    {QPalette::Midlight, 0xFFF5F3EE, 0xFFF5F3EE},
    {QPalette::Mid, 0xFFC4BFB4, 0xFFC4BFB4},
    {QPalette::Dark, 0xFFA39E92, 0xFFA39E92},
    {QPalette::Shadow, 0xFF6E6A62, 0xFF6E6A62},
    {QPalette::Highlight, 0xFF2F6391, 0xFFB8B4AA},
    {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF2F6391, 0xFF8C8A84},
    {QPalette::ToolTipBase, 0xFFFFFBE6, 0xFFFFFBE6},
    {QPalette::ToolTipText, 0xFF000000, 0xFF000000},
};

QPalette CalmPalette() {
    QPalette palette;
    for (const PaletteRow& row : paletteRows) {
        palette.setColor(QPalette::Active, row.role, QColor::fromRgb(row.color));
        palette.setColor(QPalette::Inactive, row.role, QColor::fromRgb(row.color));
        palette.setColor(QPalette::Disabled, row.role, QColor::fromRgb(row.disabledColor));
    }
    return palette;
}

QFont ProgramFont() {
    QFont font;
    // All have letters of the same widths, and the last one's are about as wide, so that every caption has room in each
    // of them.
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Arial"),
                      QStringLiteral("Nimbus Sans"), QStringLiteral("TeX Gyre Heros"), QStringLiteral("Helvetica"),
                      QStringLiteral("DejaVu Sans Condensed")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(fontHeight);
    return font;
}

/// The program's own palette where a widget shows the same colours. The toolkit keeps the pictures that it draws of
/// buttons and lists under the number of their palette, and each widget has one with a number of its own: without this
/// every window that opens would leave its pictures behind.
QPalette SharedPalette(const QPalette& ofWidget) {
    QPalette shared = QGuiApplication::palette();
    if (shared != ofWidget) {
        return ofWidget;
    }
    shared.setCurrentColorGroup(ofWidget.currentColorGroup());
    return shared;
}

constexpr int optionMark = 12;  // pixels: options stand 13 high

/// Fusion with the habits and measures of classic windows.
class ClassicStyle : public PlainScrollBarStyle {
  public:
    ClassicStyle() : PlainScrollBarStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        switch (hint) {
            case SH_ComboBox_Popup:
                return 0;  // a list drops down below its box
            case SH_UnderlineShortcut:
                return 1;
            case SH_DialogButtonBox_ButtonsHaveIcons:
                return 0;
            default:
                return PlainScrollBarStyle::styleHint(hint, option, widget, returned);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element == CE_PushButtonBevel && button != nullptr) {
            QStyleOptionButton shared = *button;
            shared.palette = SharedPalette(button->palette);
            PlainScrollBarStyle::drawControl(element, &shared, painter, widget);
            return;
        }
        PlainScrollBarStyle::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        const auto* const list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (control == CC_ComboBox && list != nullptr) {
            QStyleOptionComboBox shared = *list;
            shared.palette = SharedPalette(list->palette);
            PlainScrollBarStyle::drawComplexControl(control, &shared, painter, widget);
            return;
        }
        PlainScrollBarStyle::drawComplexControl(control, option, painter, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const bool isCovered = element == PE_PanelItemViewRow && qobject_cast<const QTableView*>(widget) != nullptr;
        if (!isCovered) {  // the cells of a table fill all of their row
            PlainScrollBarStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    // The mark of a menu bar that has no room for its menus. The toolkit's own is a file that it looks for a reader
    // for.
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const override {
        return standard == SP_ToolBarHorizontalExtensionButton
                   ? QIcon(BuiltPicture("menu-more", "1"))
                   : PlainScrollBarStyle::standardIcon(standard, option, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
            case PM_ExclusiveIndicatorWidth:
            case PM_ExclusiveIndicatorHeight:
                return optionMark;
            default:
                return PlainScrollBarStyle::pixelMetric(metric, option, widget);
        }
    }
};

}  // namespace

void InstallAppearance(QApplication& application) {
    QApplication::setStyle(new ClassicStyle);
    QApplication::setPalette(CalmPalette());
    QApplication::setFont(ProgramFont());
    application.setEffectEnabled(Qt::UI_AnimateCombo, false);
    application.setEffectEnabled(Qt::UI_AnimateMenu, false);
}

}  // namespace ballhaven::platform
