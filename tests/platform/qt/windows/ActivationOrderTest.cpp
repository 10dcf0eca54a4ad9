#include "platform/qt/windows/ActivationOrder.h"

#include "support/qt/TestWindow.h"

#include <QPointer>
#include <QWidget>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(ActivationOrder, AWindowThatComesBackFromABoxHasBeenActiveAllAlong) {
    QWidget window;
    ActivationOrder order;

    EXPECT_TRUE(order.Activate(window));
    EXPECT_FALSE(order.Activate(window));
}

TEST(ActivationOrder, AWindowBecomesActiveFromAnotherOne) {
    QWidget first;
    QWidget second;
    ActivationOrder order;
    order.Activate(first);
    order.Activate(second);

    EXPECT_TRUE(order.Activate(first));
}

TEST(ActivationOrder, TheWindowBelowBecomesActiveAnewWhenTheFrontOneGoes) {
    QWidget first;
    QWidget second;
    ActivationOrder order;
    order.Activate(first);
    order.Activate(second);

    order.Remove(second);

    EXPECT_EQ(order.Front(), &first);
    EXPECT_TRUE(order.Activate(first));
}

TEST(ActivationOrder, TheFrontWindowStaysActiveWhenOneBehindItGoes) {
    QWidget first;
    QWidget second;
    ActivationOrder order;
    order.Activate(first);
    order.Activate(second);

    order.Remove(first);

    EXPECT_FALSE(order.Activate(second));
}

TEST(ActivationOrder, WithoutAWindowThereIsNoFront) {
    const ActivationOrder order;

    EXPECT_EQ(order.Front(), nullptr);
}

TEST(ActivationOrder, AWindowWhoseDeletionComesDueDuringAReportGoesAfterTheOutermostOne) {
    ActivationOrder order;
    const QPointer<QWidget> window = new QWidget;
    order.Report([&] {
        order.Report([&] { EXPECT_TRUE(order.Keeps(*window)); });
        support::Settle();
        EXPECT_FALSE(window.isNull()) << "a report is still going on";
    });
    EXPECT_FALSE(window.isNull()) << "the toolkit has still to return from it";

    support::Settle();
    EXPECT_TRUE(window.isNull());
}

TEST(ActivationOrder, OutsideAReportNoWindowIsKept) {
    ActivationOrder order;
    QWidget window;
    order.Report([] {});

    EXPECT_FALSE(order.Keeps(window));
}

}  // namespace
}  // namespace ballhaven::platform
