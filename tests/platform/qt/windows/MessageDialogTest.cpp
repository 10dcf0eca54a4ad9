#include "platform/qt/windows/MessageDialog.h"

#include "platform/Pointer.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace ballhaven::platform {
namespace {

/// Shows a box and does something to it as soon as it is there.
BoxAnswer AnswerBy(const MessageBoxRequest& request, const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(0, [&act] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->objectName(), QStringLiteral("messageBox"));
        act(*box);
    });
    return ShowMessageDialog(request, nullptr);
}

void Press(QMessageBox& box, const char* button) {
    auto* const found = box.findChild<QPushButton*>(QLatin1String(button));
    ASSERT_NE(found, nullptr) << button;
    ASSERT_TRUE(found->isVisible() && found->isEnabled());
    QTest::mouseClick(found, Qt::LeftButton);
}

const MessageBoxRequest question{"Delete record for 1/2/90?", BoxButtons::YesNo, BoxIcon::Critical, "Ballhaven"};
const MessageBoxRequest notice{"Date already exists,\nplease select another date.", BoxButtons::Ok,
                               BoxIcon::Information, "Ballhaven"};

TEST(MessageDialog, SaysItsTitleTextAndIcon) {
    EXPECT_EQ(AnswerBy(notice,
                       [](QMessageBox& box) {
                           EXPECT_EQ(box.windowTitle(), QStringLiteral("Ballhaven"));
                           EXPECT_EQ(box.text(), QStringLiteral("Date already exists,\nplease select another date."));
                           EXPECT_EQ(box.icon(), QMessageBox::Information);
                           Press(box, "ok");
                       }),
              BoxAnswer::Ok);
}

TEST(MessageDialog, AnswersWithTheButtonThatWasPressed) {
    EXPECT_EQ(AnswerBy(question, [](QMessageBox& box) { Press(box, "yes"); }), BoxAnswer::Yes);
    EXPECT_EQ(AnswerBy(question, [](QMessageBox& box) { Press(box, "no"); }), BoxAnswer::No);
}

TEST(MessageDialog, EnterAnswersWithTheFirstButton) {
    EXPECT_EQ(AnswerBy(question, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), BoxAnswer::Yes);
}

TEST(MessageDialog, ClosingAQuestionAnswersNoAndClosingANoticeOk) {
    EXPECT_EQ(AnswerBy(question, [](QMessageBox& box) { box.close(); }), BoxAnswer::No);
    EXPECT_EQ(AnswerBy(question, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), BoxAnswer::No);
    EXPECT_EQ(AnswerBy(notice, [](QMessageBox& box) { box.close(); }), BoxAnswer::Ok);
}

TEST(MessageDialog, AQuestionStandsOnTheAnswerThatItOffers) {
    MessageBoxRequest loss = question;
    loss.offered = BoxAnswer::No;
    const auto enter = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
    EXPECT_EQ(AnswerBy(question, enter), BoxAnswer::Yes);
    EXPECT_EQ(AnswerBy(loss, enter), BoxAnswer::No);
}

TEST(MessageDialog, TakesTextForTextAndNotForMarkup) {
    EXPECT_EQ(AnswerBy({"<b>7</b>", BoxButtons::Ok, BoxIcon::None, "Ballhaven"},
                       [](QMessageBox& box) {
                           EXPECT_EQ(box.textFormat(), Qt::PlainText);
                           Press(box, "ok");
                       }),
              BoxAnswer::Ok);
}

TEST(MessageDialog, WithoutAnIconTheTextBeginsAtTheEdge) {
    EXPECT_EQ(
        AnswerBy({"The longest text of the box decides how wide it is", BoxButtons::Ok, BoxIcon::None, "Ballhaven"},
                 [](QMessageBox& box) {
                     const auto* const text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
                     ASSERT_NE(text, nullptr);
                     EXPECT_LE(text->x() - box.layout()->contentsMargins().left(), 8);
                     Press(box, "ok");
                 }),
        BoxAnswer::Ok);
}

}  // namespace
}  // namespace ballhaven::platform
