#include "platform/qt/system/Appearance.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTableView>
#include <gtest/gtest.h>

#include <set>

namespace ballhaven::platform {
namespace {

TEST(Appearance, EveryTextIsElevenPixelsHighMenusAndBoxesToo) {
    QPushButton button;
    QMenu menu;
    QMessageBox box;
    for (const QWidget* widget :
         {static_cast<QWidget*>(&button), static_cast<QWidget*>(&menu), static_cast<QWidget*>(&box)}) {
        EXPECT_EQ(widget->font().pixelSize(), 11) << widget->metaObject()->className();
    }
}

TEST(Appearance, TheFontIsTheOneThatTheProgramAsksFor) {
    EXPECT_EQ(QFontInfo(QApplication::font()).family(), QStringLiteral("Liberation Sans"));
}

TEST(Appearance, FontsOfTheSameMeasuresStandInForTheFont) {
    EXPECT_EQ(QApplication::font().families(), (QStringList{"Liberation Sans", "Arimo", "Arial", "Nimbus Sans",
                                                            "TeX Gyre Heros", "Helvetica", "DejaVu Sans Condensed"}));
}

TEST(Appearance, AFontOfTheDesktopDoesNotTakeTheProgramsPlace) {
    EXPECT_FALSE(QApplication::desktopSettingsAware());
}

TEST(Appearance, ThereIsOneBlack) {
    const QPalette palette = QApplication::palette();
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText}) {
        EXPECT_EQ(palette.color(QPalette::Active, role), QColor(0, 0, 0)) << role;
    }
}

/// Draws the widget in many windows, one after the other, and says whether a picture that was drawn before them is
/// still kept: the toolkit keeps 64 KiB of them here.
template <typename Widget>
bool LeavesRoomForOtherPictures() {
    const int limitBefore = QPixmapCache::cacheLimit();
    QPixmapCache::clear();
    QPixmapCache::setCacheLimit(64);
    QPixmapCache::insert(QStringLiteral("drawn before"), QPixmap(8, 8));
    for (int i = 0; i < 50; ++i) {
        QWidget window;
        Widget widget(&window);
        widget.resize(60, 25);
        widget.grab();
    }
    QPixmap found;
    const bool isKept = QPixmapCache::find(QStringLiteral("drawn before"), &found);
    QPixmapCache::setCacheLimit(limitBefore);
    return isKept;
}

TEST(Appearance, WindowsThatOpenAndCloseLeaveNoPicturesOfTheirButtonsAndListsBehind) {
    EXPECT_TRUE(LeavesRoomForOtherPictures<QPushButton>());
    EXPECT_TRUE(LeavesRoomForOtherPictures<QComboBox>());
}

TEST(Appearance, AButtonWithColoursOfItsOwnKeepsThem) {
    QPushButton button;
    button.resize(60, 25);
    const QImage plain = button.grab().toImage();
    QPalette colours = button.palette();
    colours.setColor(QPalette::Button, Qt::red);
    button.setPalette(colours);
    EXPECT_NE(button.grab().toImage(), plain);
}

TEST(Appearance, ScrollBarsAreFlatFacesInTheColoursOfThePalette) {
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.resize(14, 200);
    const QImage drawn = bar.grab().toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            colours.insert(drawn.pixel(x, y));
        }
    }
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(colours,
              (std::set<QRgb>{palette.color(QPalette::Midlight).rgb(), palette.color(QPalette::Dark).rgb(),
                              palette.color(QPalette::Button).rgb(), palette.color(QPalette::ButtonText).rgb()}));
}

TEST(Appearance, ARowOfATableIsFilledByItsCellsAlone) {
    QStyleOptionViewItem row;
    row.rect = QRect(0, 0, 20, 20);
    row.features = QStyleOptionViewItem::Alternate;
    row.palette = QApplication::palette();
    const auto filled = [&row](const QWidget& widget) {
        QImage image(row.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &row, &painter, &widget);
        return image.pixel(10, 10) != QColor(Qt::white).rgb();
    };
    EXPECT_FALSE(filled(QTableView()));
    EXPECT_TRUE(filled(QListView()));
}

TEST(Appearance, ListsDropDownBelowTheirBox) {
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
}

TEST(Appearance, TextStandsOutFromWhatItIsWrittenOn) {
    const QPalette palette = QApplication::palette();

    EXPECT_GT(palette.color(QPalette::Window).lightness() - palette.color(QPalette::WindowText).lightness(), 150);
    EXPECT_GT(palette.color(QPalette::Base).lightness() - palette.color(QPalette::Text).lightness(), 150);
    EXPECT_GT(palette.color(QPalette::HighlightedText).lightness() - palette.color(QPalette::Highlight).lightness(),
              100);
}

}  // namespace
}  // namespace ballhaven::platform
