#include "platform/qt/widgets/DropDownWidget.h"

#include "support/qt/TestWindow.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class DropDownWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        list.name = "cboList(0)";
        list.toolTip = "The game to show";
        list.bounds = Bounds{120, 280, 2055, 315};
        list.Fill({"Pick 3", "Pick 4", "Evening Six"});
        list.Select(1);
        list.change = [this] { chosen.push_back(list.Selected()); };
        form.Show();
        box = form.Find<QComboBox>("cboList(0)");
        ASSERT_NE(box, nullptr);
        ASSERT_TRUE(box->isVisible() && box->isEnabled());
    }

    /// Opens the list and clicks an entry, as a person does.
    void Pick(int entry) {
        QTest::mouseClick(box, Qt::LeftButton);
        QAbstractItemView* const entries = box->view();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(entries));
        const QPoint place = entries->visualRect(entries->model()->index(entry, 0)).center();
        QTest::mouseMove(entries->viewport(), place);
        QTest::mouseClick(entries->viewport(), Qt::LeftButton, {}, place);
    }

    DropDownList list;
    TestWindow form{&list};
    QComboBox* box = nullptr;
    std::vector<int> chosen;
};

TEST_F(DropDownWidgetTest, ShowsTheEntriesAndTheSelection) {
    EXPECT_EQ(box->count(), 3);
    EXPECT_EQ(box->currentText(), QStringLiteral("Pick 4"));
    EXPECT_EQ(box->geometry(), QRect(8, 19, 137, 21));
}

TEST_F(DropDownWidgetTest, TheChoiceIsInTheValueWhenTheHandlerRuns) {
    Pick(2);

    EXPECT_EQ(chosen, std::vector<int>{2});
    EXPECT_EQ(list.Text(), "Evening Six");
}

TEST_F(DropDownWidgetTest, ChoosingTheSelectedEntryAgainIsReportedToo) {
    Pick(1);

    EXPECT_EQ(chosen, std::vector<int>{1});
}

TEST_F(DropDownWidgetTest, TheArrowKeysChooseTheNextEntry) {
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);

    EXPECT_EQ(chosen, std::vector<int>{2});
}

TEST_F(DropDownWidgetTest, TheFirstLetterOfAnEntryChoosesIt) {
    list.Fill({"Pick 3", "Pick 4", "Evening Six", "Wednesday"});
    list.Select(1);
    chosen.clear();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_W);

    EXPECT_EQ(list.Text(), "Wednesday");
    EXPECT_EQ(chosen, std::vector<int>{3});
}

TEST_F(DropDownWidgetTest, ASelectionByTheProgramShowsAndIsReportedOnce) {
    list.Select(0);

    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_EQ(chosen, std::vector<int>{0});
}

TEST_F(DropDownWidgetTest, FillingTheListAnewReportsNothing) {
    list.Fill({"Lotto 49"});

    EXPECT_EQ(box->count(), 1);
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_TRUE(chosen.empty());
}

TEST_F(DropDownWidgetTest, AHandlerMayFillItsOwnListAnew) {
    list.change = [this] {
        chosen.push_back(list.Selected());
        list.change = nullptr;
        list.Fill({"Lotto 49"});
        list.Select(0);
    };
    Pick(2);

    EXPECT_EQ(chosen, std::vector<int>{2});
    EXPECT_EQ(box->currentText(), QStringLiteral("Lotto 49"));
}

TEST_F(DropDownWidgetTest, AWheelThatPassesOverAListWithoutTheKeyboardChoosesNothing) {
    box->clearFocus();
    const QPointF middle = box->rect().center();
    QWheelEvent turn(middle, box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(box, &turn);

    EXPECT_EQ(list.Selected(), 1);
    EXPECT_TRUE(chosen.empty());
}

TEST_F(DropDownWidgetTest, IsCalledByItsToolTip) {
    EXPECT_EQ(box->accessibleName(), QStringLiteral("The game to show"));
    EXPECT_EQ(box->toolTip(), QStringLiteral("The game to show"));
}

TEST_F(DropDownWidgetTest, ALongEntryEndsInAnEllipsis) {
    const QString name(20, QLatin1Char('W'));
    list.Fill({name.toStdString()});
    list.Select(0);
    const QImage cutShort = box->grab().toImage();
    const QRect room(0, 0, box->width() - 25, box->height());

    QString withEllipsis;
    for (int letters = 20; letters > 0; --letters) {
        withEllipsis = name.left(letters) + QChar(0x2026);
        if (box->fontMetrics().horizontalAdvance(withEllipsis) < room.width() - 4) {
            break;
        }
    }
    list.Fill({"?"});
    list.Select(0);
    box->setItemText(0, withEllipsis);
    EXPECT_EQ(box->grab(room).toImage(), cutShort.copy(room)) << withEllipsis.toStdString();
}

TEST(DropDownWidget, IsCalledByItsLabel) {
    Label label;
    label.name = "lblLabel(0)";
    label.text = "Select Game";
    DropDownList list;
    list.name = "cboList(0)";
    list.label = &label;
    TestWindow form{&label, &list};
    form.Show();

    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(form.Find("cboList(0)"));
    EXPECT_EQ(read->text(QAccessible::Name), QStringLiteral("Select Game"));
    const auto relations = read->relations(QAccessible::Label);
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations[0].first->object(), form.Find("lblLabel(0)"));
}

}  // namespace
}  // namespace ballhaven::platform
