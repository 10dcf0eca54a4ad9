#include "calendar/Calendar.h"

#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "platform/Services.h"
#include "platform/controls/Grid.h"
#include "state/AppState.h"
#include "support/FreshStart.h"
#include "support/MessageScript.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxButtons;
using platform::BoxIcon;
using std::chrono::year;
using std::chrono::year_month_day;
using support::Settle;
using Texts = std::vector<std::string>;

CalendarForm& form = ahcCalendar;

/// The calendar as the log opens it, on screen and used with the mouse.
class Calendar : public testing::Test {
  protected:
    Calendar() {
        LayOutMainForm();
        WireCalendar();
        platform::services.today = [] { return year{2004} / 2 / 14; };
        platform::services.firstDayOfWeek = [] { return std::chrono::Sunday; };
        platform::services.monthName = platform::EnglishMonthName;
        platform::services.shortDayName = platform::EnglishShortDayName;
        platform::services.endProcess = [this](int exitCode) { exitCodes.push_back(exitCode); };
        form.acceptDate = [this](const std::string& date) {
            accepted.push_back(date);
            return accepts;
        };
    }

    ~Calendar() override {
        support::CloseForms();
        Settle();
    }

    /// Opens the calendar on a date, acts in it, and closes it if it is still open then.
    void Use(year_month_day date, const std::function<void()>& acts) {
        form.SetToday(date);
        form.OutputFormat.clear();
        Open(acts);
    }

    void Open(const std::function<void()>& acts) {
        QTimer::singleShot(0, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget()));
            try {
                acts();
            } catch (const std::exception& failure) {
                ADD_FAILURE() << failure.what();
            }
            openAfterwards = form.Loaded();
            form.Terminate();
        });
        form.Initialize();
        Settle();
    }

    static QWidget& Widget() { return dynamic_cast<QWidget&>(*form.window.view); }
    static QWidget& Surface() { return dynamic_cast<QWidget&>(*form.surface.view); }
    static QWidget& ButtonOf(std::size_t index) { return dynamic_cast<QWidget&>(*form.cmdCal[index].view); }

    static void Press(QPoint place) { QTest::mousePress(&Surface(), Qt::LeftButton, {}, place); }
    static void Release(QPoint place) { QTest::mouseRelease(&Surface(), Qt::LeftButton, {}, place); }
    static void Click(QPoint place) {
        Press(place);
        Release(place);
    }

    /// A move of the mouse with buttons held, which the test library cannot send.
    static void Move(QPoint place, Qt::MouseButtons held = Qt::LeftButton) {
        QMouseEvent move(QEvent::MouseMove, place, Surface().mapToGlobal(place), Qt::NoButton, held, {});
        QApplication::sendEvent(&Surface(), &move);
    }

    /// The left top pixel of a cell, and its middle; row and column from 0.
    static QPoint Corner(int row, int column) {
        return {5 + column * form.measures.cellWidth, (row + 2) * form.measures.rowHeight};
    }
    static QPoint Middle(int row, int column) {
        return Corner(row, column) + QPoint(form.measures.cellWidth / 2, form.measures.rowHeight / 2);
    }
    static QPoint MiddleOf(int cell) { return Middle((cell - 1) / 7, (cell - 1) % 7); }

    static void ExpectFocusRects(const std::vector<platform::PixelRect>& expected) {
        EXPECT_EQ(form.surface.FocusRects(), expected);
    }

    std::vector<int> exitCodes;
    Texts accepted;
    bool accepts = true;
    bool openAfterwards = false;

  private:
};

using QuirkCalendarLine1 = Calendar;
using QuirkCalendarKeys1 = Calendar;

TEST_F(Calendar, IsAsLargeAsItsTextsNeedAndHoldsAllItsParts) {
    Use(year{2004} / 2 / 3, [] {
        EXPECT_EQ(Surface().width(), 8 * form.surface.TextWidth("777"));
        EXPECT_EQ(Surface().height(), 23 * form.surface.TextHeight() / 2);
        EXPECT_TRUE(Surface().rect().contains(ButtonOf(0).geometry()));
        EXPECT_TRUE(Surface().rect().contains(ButtonOf(1).geometry()));
        EXPECT_LE(8 * form.measures.rowHeight, 136) << "the days end above the line over the buttons";
        EXPECT_EQ(ButtonOf(0).geometry(), QRect(96, 144, 57, 25));
        EXPECT_EQ(ButtonOf(1).geometry(), QRect(16, 144, 57, 25));
    });
}

TEST_F(Calendar, OpensBesideTheMainWindowsPicture) {
    Use(year{2004} / 2 / 3, [] { EXPECT_EQ(Widget().pos(), QPoint((2520 + 500 + 7) / 15, (720 + 1000 + 7) / 15)); });
}

TEST_F(Calendar, WhatIsNoDateLeavesTheSelectedOne) {
    form.SetToday(year{2004} / 2 / 29);
    form.SetToday(year{2003} / 2 / 29);
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
    form.SetToday(year_month_day{});
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
}

TEST_F(Calendar, IsTitledWithTheMonthOnShow) {
    std::vector<std::string> asked;
    platform::services.monthName = [&asked](std::chrono::month month) {
        asked.push_back(platform::EnglishMonthName(month));
        return asked.back();
    };
    Use(year{2004} / 2 / 3, [] { Surface().grab(); });
    ASSERT_FALSE(asked.empty());
    EXPECT_EQ(asked.back(), "February");
}

TEST_F(Calendar, OffersTodayWhereNoDateHasBeenSet) {
    Open([] { EXPECT_EQ(form.Today, year{2004} / 2 / 14); });
}

TEST_F(Calendar, TakesTheMaskOfTheScreensDatesUnlessItHasOne) {
    appState.shortDateFormat = "d.m.y";
    Use(year{2004} / 2 / 3, [] { EXPECT_EQ(form.OutputFormat, "dd.mm.yyyy"); });
    form.OutputFormat = "yyyy-mm-dd";
    Open([] { QTest::mouseClick(&ButtonOf(1), Qt::LeftButton); });
    EXPECT_EQ(accepted, Texts{"2004-02-03"});
}

TEST_F(Calendar, OkHandsOverTheDateAndCloses) {
    Use(year{2004} / 2 / 3, [] {
        Click(MiddleOf(20));
        EXPECT_TRUE(form.Loaded()) << "choosing a day does not close";
        QTest::mouseClick(&ButtonOf(1), Qt::LeftButton);
    });
    EXPECT_FALSE(openAfterwards);
    EXPECT_EQ(accepted, Texts{"02/14/2004"});
    EXPECT_EQ(form.result, 1);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "no hourglass is left";
}

TEST_F(Calendar, TheHourglassIsOverTheScreenWhileTheDateIsTaken) {
    Qt::CursorShape pointer = Qt::ArrowCursor;
    form.acceptDate = [&pointer](const std::string&) {
        pointer = QApplication::overrideCursor() == nullptr ? Qt::ArrowCursor : QApplication::overrideCursor()->shape();
        return true;
    };
    Use(year{2004} / 2 / 3, [] { QTest::mouseClick(&ButtonOf(1), Qt::LeftButton); });
    EXPECT_EQ(pointer, Qt::WaitCursor);
}

TEST_F(Calendar, ARefusedDateKeepsItOpenForAnotherChoice) {
    accepts = false;
    Use(year{2004} / 2 / 3, [this] {
        QTest::mouseClick(&ButtonOf(1), Qt::LeftButton);
        EXPECT_TRUE(form.Loaded());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        accepts = true;
        Click(MiddleOf(10));
        QTest::mouseClick(&ButtonOf(1), Qt::LeftButton);
    });
    EXPECT_FALSE(openAfterwards);
    EXPECT_EQ(accepted, (Texts{"02/03/2004", "02/04/2004"}));
    EXPECT_EQ(form.result, 1);
}

TEST_F(Calendar, AfterARefusalTheCloseBoxIsACancel) {
    accepts = false;
    Use(year{2004} / 2 / 3, [] {
        QTest::mouseClick(&ButtonOf(1), Qt::LeftButton);
        Widget().close();
    });
    EXPECT_FALSE(openAfterwards);
    EXPECT_EQ(accepted.size(), 1U);
    EXPECT_EQ(form.result, 0);
}

TEST_F(Calendar, CancelEscapeTheCloseBoxAndTheRightButtonCloseWithoutADate) {
    const std::vector<std::function<void()>> ways = {
        [] { QTest::mouseClick(&ButtonOf(0), Qt::LeftButton); },
        [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); },
        [] { Widget().close(); },
        [] { QTest::mousePress(&Surface(), Qt::RightButton, {}, MiddleOf(12)); },
        [] { QTest::mousePress(&Surface(), Qt::RightButton, {}, QPoint(5, 5)); },
    };
    for (const auto& way : ways) {
        Use(year{2004} / 2 / 3, way);
        EXPECT_FALSE(openAfterwards);
        EXPECT_EQ(form.result, 0);
    }
    EXPECT_EQ(accepted, Texts{});
}

TEST_F(Calendar, TheMiddleButtonPressesItsButtonsAndTheRightOneDoesNot) {
    Use(year{2004} / 2 / 3, [] {
        QTest::mouseClick(&ButtonOf(1), Qt::RightButton);
        QTest::mouseClick(&ButtonOf(0), Qt::RightButton);
        EXPECT_TRUE(form.Loaded());
        QTest::mouseClick(&ButtonOf(1), Qt::MiddleButton);
    });
    EXPECT_FALSE(openAfterwards);
    EXPECT_EQ(accepted, Texts{"02/03/2004"});
}

TEST_F(Calendar, AButtonLeftBeforeTheReleaseIsNotPressed) {
    Use(year{2004} / 2 / 3, [] {
        QTest::mousePress(&ButtonOf(1), Qt::LeftButton);
        QTest::mouseRelease(&ButtonOf(1), Qt::LeftButton, {}, QPoint(-1, 5));
    });
    EXPECT_TRUE(openAfterwards);
    EXPECT_EQ(accepted, Texts{});
}

// Not a bug: CALENDAR-KEYS-1 in docs/not-bugs.md.
TEST_F(QuirkCalendarKeys1, EnterTheSpaceBarAndTheUnderlinedLettersDoNothing) {
    Use(year{2004} / 2 / 3, [] {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Left, Qt::Key_Down}) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QTest::keyClick(&ButtonOf(1), key);
        }
        QTest::keyClick(&Widget(), Qt::Key_O, Qt::AltModifier);
        QTest::keyClick(&Widget(), Qt::Key_C, Qt::AltModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_EQ(QApplication::focusWidget(), &Surface());
        EXPECT_EQ(form.Today, year{2004} / 2 / 3);
    });
    EXPECT_TRUE(openAfterwards);
    EXPECT_EQ(accepted, Texts{});
}

TEST_F(Calendar, TheArrowsAnswerOnAllTheirEdges) {
    Use(year{2004} / 2 / 3, [] {
        const int right = form.measures.nextRect.right;
        const int left = form.measures.nextRect.left;
        for (const QPoint place : {QPoint(2, 2), QPoint(13, 2), QPoint(2, 13), QPoint(13, 13)}) {
            form.Today = year{2004} / 2 / 3;
            Click({left, 2});
            Click(place);
            EXPECT_EQ(form.month.shownMonth, year{2004} / 2) << place.x() << ", " << place.y();
        }
        for (const QPoint place : {QPoint(left, 2), QPoint(right, 2), QPoint(left, 13), QPoint(right, 13)}) {
            Click({2, 2});
            Click(place);
            EXPECT_EQ(form.month.shownMonth, year{2004} / 2) << place.x() << ", " << place.y();
        }
        for (const QPoint place : {QPoint(1, 2), QPoint(2, 1), QPoint(14, 13), QPoint(13, 14), QPoint(left - 1, 2),
                                   QPoint(right + 1, 2), QPoint(left, 14), QPoint(right, 1)}) {
            Click(place);
            EXPECT_EQ(form.month.shownMonth, year{2004} / 2) << place.x() << ", " << place.y();
        }
        EXPECT_EQ(form.Today, year{2004} / 2 / 3);
    });
}

TEST_F(Calendar, EachPressInQuickSuccessionStepsOneMonth) {
    Use(year{2004} / 1 / 31, [] {
        QTest::mouseClick(&Surface(), Qt::LeftButton, {}, QPoint(form.measures.nextRect.left + 5, 7));
        QTest::mouseDClick(&Surface(), Qt::LeftButton, {}, QPoint(form.measures.nextRect.left + 5, 7));
        EXPECT_EQ(form.month.shownMonth, year{2004} / 3);
        EXPECT_EQ(form.Today, year{2004} / 3 / 29) << "by way of February";
    });
}

TEST_F(Calendar, APressOnAnArrowNeverStartsADrag) {
    Use(year{2004} / 2 / 3, [] {
        Press({7, 7});
        EXPECT_FALSE(form.dragging);
        Move(MiddleOf(20));
        ExpectFocusRects({});
        Release(MiddleOf(20));
        EXPECT_EQ(form.Today, year{2004} / 1 / 3);
    });
}

TEST_F(Calendar, APressInTheTitleBandOrBelowTheDaysDoesNothing) {
    Use(year{2004} / 2 / 3, [] {
        for (const QPoint place : {QPoint(80, 5), QPoint(80, form.measures.rowHeight + 3),
                                   QPoint(80, 8 * form.measures.rowHeight - 1), QPoint(4, 3 * form.measures.rowHeight),
                                   QPoint(5 + 7 * form.measures.cellWidth, 3 * form.measures.rowHeight)}) {
            Press(place);
            EXPECT_FALSE(form.dragging) << place.x() << ", " << place.y();
            Release(place);
        }
        EXPECT_EQ(form.Today, year{2004} / 2 / 3);
    });
}

TEST_F(Calendar, EachCellAnswersOnItsCornerPixels) {
    Use(year{2004} / 3 / 15, [] {
        for (int cell = 1; cell <= 31; ++cell) {  // March 2004 begins in cell 1
            const QPoint corner = Corner((cell - 1) / 7, (cell - 1) % 7);
            for (const QPoint inside :
                 {QPoint(0, 0), QPoint(form.measures.cellWidth - 1, 0), QPoint(0, form.measures.rowHeight - 1),
                  QPoint(form.measures.cellWidth - 1, form.measures.rowHeight - 1)}) {
                Click(corner + inside);
                ASSERT_EQ(form.month.selectedCell, cell) << inside.x() << ", " << inside.y();
                ASSERT_EQ(form.Today, year{2004} / 3 / cell);
            }
        }
    });
}

TEST_F(Calendar, GreyCellsLeadToTheMonthsBeside) {
    Use(year{2010} / 2 / 10, [] {
        Click(MiddleOf(42));
        EXPECT_EQ(form.Today, year{2010} / 3 / 14);
        EXPECT_EQ(form.month.shownMonth, year{2010} / 3);
    });
    Use(year{2004} / 2 / 10, [] {
        Click(MiddleOf(1));
        EXPECT_EQ(form.Today, year{2004} / 1 / 26);
        EXPECT_EQ(form.month.shownMonth, year{2004} / 1);
    });
}

TEST_F(Calendar, ADragFollowsTheMouseAndTakesTheCellOfTheRelease) {
    Use(year{2004} / 3 / 15, [] {
        Press(MiddleOf(1));
        EXPECT_EQ(form.Today, year{2004} / 3 / 15) << "the press selects nothing yet";
        const int width = form.measures.cellWidth + 1;
        const int row = 2 * form.measures.rowHeight;
        ExpectFocusRects({{5, row, 5 + width, row + form.measures.rowHeight - 1}});
        Move(MiddleOf(2));
        ExpectFocusRects({{4 + width, row, 4 + 2 * width, row + form.measures.rowHeight - 1}});
        Move(MiddleOf(9));
        Release(MiddleOf(9));
        ExpectFocusRects({});
        EXPECT_EQ(form.Today, year{2004} / 3 / 9);
        Move(MiddleOf(20));
        ExpectFocusRects({});
    });
}

TEST_F(Calendar, ADragThatEndsOutsideTheDaysTakesTheLastCellInside) {
    Use(year{2004} / 3 / 15, [] {
        Press(MiddleOf(1));
        Move(MiddleOf(14));
        Move({5 + 7 * form.measures.cellWidth, 3 * form.measures.rowHeight + 4});
        EXPECT_EQ(form.surface.FocusRects().size(), 1U) << "the frame stays where it was";
        Release({400, 400});
        EXPECT_EQ(form.Today, year{2004} / 3 / 14);
        ExpectFocusRects({});
    });
}

TEST_F(Calendar, AMoveWithoutTheLeftButtonLeavesTheDragWhereItIs) {
    Use(year{2004} / 3 / 15, [] {
        Press(MiddleOf(1));
        Move(MiddleOf(14), Qt::NoButton);
        Release(MiddleOf(14));
        EXPECT_EQ(form.Today, year{2004} / 3 / 1);
    });
}

TEST_F(Calendar, AClosingCutsADragShort) {
    Use(year{2004} / 3 / 15, [] {
        Press(MiddleOf(1));
        QTest::keyClick(&Surface(), Qt::Key_Escape);
    });
    EXPECT_FALSE(openAfterwards);
    Use(year{2004} / 3 / 15, [] {
        ExpectFocusRects({});
        Release(MiddleOf(8));
        EXPECT_EQ(form.Today, year{2004} / 3 / 15);
    });
}

// Not a bug: CALENDAR-LINE-1 in docs/not-bugs.md.
TEST_F(QuirkCalendarLine1, APressOnItInTheLastColumnSelectsTheDayBeforeTheFirst) {
    Use(year{2004} / 3 / 15, [] {
        Click({5 + 7 * form.measures.cellWidth - 1, 2 * form.measures.rowHeight - 1});
        EXPECT_EQ(form.Today, year{2004} / 2 / 29);
        QTest::mouseClick(&ButtonOf(1), Qt::LeftButton);
    });
    EXPECT_EQ(accepted, Texts{"02/29/2004"});
}

TEST_F(QuirkCalendarLine1, AfterItTheArrowsCountFromTheSelectedDay) {
    Use(year{2004} / 3 / 15, [] {
        Click({5 + 7 * form.measures.cellWidth - 1, 2 * form.measures.rowHeight - 1});
        Click({form.measures.nextRect.left, 5});
        EXPECT_EQ(form.Today, year{2004} / 3 / 29);
        EXPECT_EQ(form.month.shownMonth, year{2004} / 3);
        EXPECT_EQ(form.month.selectedCell, 29);
        Click({5 + 7 * form.measures.cellWidth - 1, 2 * form.measures.rowHeight - 1});
        Click({form.measures.prevRect.left, 5});
        EXPECT_EQ(form.Today, year{2004} / 1 / 29);
        EXPECT_EQ(form.month.shownMonth, year{2004} / 1);
    });
}

TEST_F(QuirkCalendarLine1, APressOnItInAnyOtherColumnEndsTheProgram) {
    support::MessageScript boxes;
    boxes.Expect("Ballhaven", "Subscript out of range: a table has no room for another row.", BoxButtons::Ok,
                 BoxIcon::Critical);
    Use(year{2004} / 3 / 15, [] { Click({5 + 6 * form.measures.cellWidth - 1, 2 * form.measures.rowHeight - 1}); });
    EXPECT_EQ(exitCodes, std::vector<int>{1});
}

TEST_F(Calendar, ShowsTheSelectedDayAndTheDragOnTheScreen) {
    Use(year{2004} / 3 / 15, [] {
        const QColor darkBlue(0, 0, 128);
        const QPoint inBox = Corner(2, 0) + QPoint(2, 1);
        EXPECT_EQ(Surface().grab().toImage().pixelColor(inBox), darkBlue);
        const QPoint onFrame = Corner(0, 1);
        const QImage without = Surface().grab().toImage();
        Press(MiddleOf(2));
        EXPECT_NE(Surface().grab().toImage(), without);
        Release(MiddleOf(2));
        EXPECT_EQ(Surface().grab().toImage().pixelColor(onFrame + QPoint(2, 1)), darkBlue);
        EXPECT_NE(Surface().grab().toImage().pixelColor(inBox), darkBlue);
    });
}

TEST_F(Calendar, TerminateClosesItWithoutAskingAnybody) {
    Use(year{2004} / 3 / 15, [] {
        form.Terminate();
        EXPECT_FALSE(form.Loaded());
    });
    EXPECT_EQ(accepted, Texts{});
    form.Terminate();
}

TEST_F(Calendar, ItsRememberedPlaceMovesIt) {
    Use(year{2004} / 3 / 15, [] {
        form.SetBorderLeft(1500);
        form.SetBorderTop(750);
        EXPECT_EQ(Widget().pos(), QPoint(100, 50));
    });
    EXPECT_EQ(form.BorderLeft, 1500);
    EXPECT_EQ(form.BorderTop, 750);
}

TEST_F(Calendar, ItsRememberedPlaceHoldsWhenItIsGivenBeforeTheOpening) {
    form.SetBorderLeft(1500);
    form.SetBorderTop(750);
    Use(year{2004} / 3 / 15, [] { EXPECT_EQ(Widget().pos(), QPoint(100, 50)); });
}

TEST_F(Calendar, DropsDownUnderAControl) {
    platform::TextBox box;
    box.name = "txtDate";
    box.bounds = platform::Bounds{300, 600, 1500, 300};
    support::TestWindow window{&box};
    window.Show();
    AttachControl(box);
    const QPoint corner = window.Find("txtDate")->mapToGlobal(QPoint(0, 0));
    Use(year{2004} / 3 / 15, [&] { EXPECT_EQ(Widget().pos(), corner + QPoint(0, 20)); });
    EXPECT_EQ(form.OutputControl, &box);
}

TEST_F(Calendar, SaysWhyItCannotStandUnderAControl) {
    platform::TextBox box;
    box.name = "txtDate";
    support::MessageScript boxes;
    boxes.Expect("Ballhaven", "Error while attaching to a control: txtDate is not on the screen", BoxButtons::Ok,
                 BoxIcon::Critical);
    AttachControl(box);
    EXPECT_EQ(form.OutputControl, &box);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(Calendar, SendsTheDateAsTextElseAsCaptionElseToAControlsOwnRoutine) {
    platform::TextBox box;
    platform::DropDownList list;
    platform::Label label;
    platform::Button button;
    platform::OptionButton option;
    platform::Grid grid;
    platform::DrawingSurface surface;
    platform::DrawingSurface deaf;
    platform::Line line;
    std::string taken;
    surface.takeText = [&taken](const std::string& text) { taken = text; };
    list.Fill({"03/14/2004", "03/15/2004"});
    form.Today = year{2004} / 3 / 15;
    form.OutputFormat = "mm/dd/yyyy";
    for (platform::Control* control : std::initializer_list<platform::Control*>{&box, &list, &label, &button, &option,
                                                                                &grid, &surface, &deaf, &line}) {
        form.OutputControl = control;
        SendDateToControl();
    }
    EXPECT_EQ(*box.text, "03/15/2004");
    EXPECT_EQ(list.Selected(), 1);
    EXPECT_EQ(*label.text, "03/15/2004");
    EXPECT_EQ(*button.caption, "03/15/2004");
    EXPECT_EQ(*option.caption, "03/15/2004");
    EXPECT_EQ(*grid.caption, "03/15/2004");
    EXPECT_EQ(taken, "03/15/2004");
}

TEST_F(Calendar, AListWithoutTheDateKeepsItsChoiceAndNoControlIsNoMatter) {
    platform::DropDownList list;
    list.Fill({"03/14/2004"});
    list.Select(0);
    form.Today = year{2004} / 3 / 15;
    form.OutputFormat = "mm/dd/yyyy";
    form.OutputControl = &list;
    SendDateToControl();
    EXPECT_EQ(list.Selected(), 0);
    form.OutputControl = nullptr;
    SendDateToControl();
}

/// The calendar of the whole program, which offers a date for a draw.
class CalendarOfTheProgram : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.draws = {{"01/01/1990", {1, 2, 3, 4, 5, 6}}}});
        Start();
    }
};

TEST_F(CalendarOfTheProgram, OpensOverTheMainWindowsPicture) {
    QPoint main;
    QPoint calendar;
    InModal(ahcCalendar.window, [&] {
        main = {frmMainForm.window.Left(), frmMainForm.window.Top()};
        calendar = {form.window.Left(), form.window.Top()};
        QTest::keyClick(dynamic_cast<QWidget*>(form.surface.view), Qt::Key_Escape);
    });
    frmMainForm.window.MoveTo(1500, 900);
    support::Settle();
    ChooseFromMenu("mnuEdit", "mnuEditArray(4)");
    EXPECT_EQ(main, QPoint(1500, 900));
    EXPECT_NEAR(calendar.x(), 1500 + 2520 + 500, 15) << "held on the screen's pixels";
    EXPECT_NEAR(calendar.y(), 900 + 720 + 1000, 15);
}

TEST_F(CalendarOfTheProgram, HasTheOrdinaryPointerWhenTheToolbarOpensItUnderTheHourglass) {
    bool opened = false;
    InModal(ahcCalendar.window, [&opened] {
        opened = true;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        QTest::keyClick(dynamic_cast<QWidget*>(form.surface.view), Qt::Key_Escape);
    });
    Click("cmdButton(2)");
    EXPECT_TRUE(opened);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace ballhaven
