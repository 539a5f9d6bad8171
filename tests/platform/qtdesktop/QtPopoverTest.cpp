// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtPopover.h"

#include "platform/qtdesktop/PopoverPlacement.h"
#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/platform/qtdesktop/PrivateBus.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

namespace fadeloom {
namespace {

class QtPopoverTest : public testing::Test {
protected:
    QtPopoverTest()
    {
        popover.whenShown([this] { shown += 1; });
        popover.whenClosed([this] { closed += 1; });
        QQmlComponent component(popover.view().engine());
        component.setData("import QtQuick; Item { width: 380; height: 465 }", {});
        popover.view().setContent({}, nullptr, component.create());
    }
    void press(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&popover.view(), &event);
    }

    OffscreenApplication application;
    QRect icon{600, 0, 24, 24};
    bool reducesMotion = false;
    QtPopover popover{[this] { return IconPlace{icon}; }, [this] { return reducesMotion; }};
    int shown = 0;
    int closed = 0;
};

TEST_F(QtPopoverTest, opensBesideTheIconInTheSizeOfItsContent)
{
    popover.show();

    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(popover.view().size(), QSize(380, 465));
    EXPECT_GE(popover.view().y(), icon.bottom());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(closed, 0);
}

TEST_F(QtPopoverTest, passesTheScreensCapabilitiesToItsContent)
{
    popover.show();
    const auto& content = *popover.view().rootObject();

    const int free = popover.view().screen()->availableGeometry().height();
    EXPECT_EQ(content.property("availableHeight").toInt(), free - 2 * panelGap);
    EXPECT_TRUE(content.property("hasRoundCorners").toBool());
    EXPECT_TRUE(content.property("isTranslucent").toBool());

    popover.turnIntoOrdinaryWindow();
    popover.show();

    EXPECT_FALSE(content.property("hasRoundCorners").toBool());
    EXPECT_FALSE(content.property("isTranslucent").toBool());
}

TEST_F(QtPopoverTest, shownTwiceIsOpenOnce)
{
    popover.show();
    popover.show();

    EXPECT_EQ(shown, 1);
}

TEST_F(QtPopoverTest, closesOnce)
{
    popover.show();

    popover.close();
    popover.close();

    EXPECT_FALSE(popover.isShown());
    EXPECT_EQ(closed, 1);
}

TEST_F(QtPopoverTest, closesByEscape)
{
    popover.show();

    press(Qt::Key_A);
    EXPECT_TRUE(popover.isShown());
    press(Qt::Key_Escape);

    EXPECT_FALSE(popover.isShown());
    EXPECT_EQ(closed, 1);
}

TEST_F(QtPopoverTest, growsWithItsContentAndStaysInPlace)
{
    popover.show();
    const int before = popover.view().y();

    popover.view().rootObject()->setHeight(546);
    QCoreApplication::processEvents();

    EXPECT_EQ(popover.view().height(), 546);
    EXPECT_EQ(popover.view().y(), before);
}

TEST_F(QtPopoverTest, opensAgain)
{
    popover.show();
    popover.close();
    popover.show();

    EXPECT_EQ(shown, 2);
    EXPECT_TRUE(popover.isShown());
}

TEST_F(QtPopoverTest, aMinimisedWindowIsNotShown)
{
    popover.turnIntoOrdinaryWindow();
    popover.show();

    popover.view().setWindowState(Qt::WindowMinimized);
    QCoreApplication::processEvents();
    EXPECT_FALSE(popover.isShown());
    EXPECT_EQ(closed, 1);

    popover.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(popover.isShown());
    EXPECT_FALSE(popover.view().windowStates().testFlag(Qt::WindowMinimized));
    EXPECT_EQ(shown, 2);
    popover.close();
    EXPECT_EQ(closed, 2);
}

TEST_F(QtPopoverTest, aRestoredWindowIsShown)
{
    popover.turnIntoOrdinaryWindow();
    popover.show();

    popover.view().setWindowState(Qt::WindowMinimized);
    QCoreApplication::processEvents();
    popover.view().setWindowState(Qt::WindowNoState);
    QCoreApplication::processEvents();

    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(closed, 1);
}

TEST_F(QtPopoverTest, fadesInWhenItIsAnimated)
{
    popover.setAnimated(true);
    popover.show();
    const auto& content = *popover.view().rootObject();
    EXPECT_LT(content.opacity(), 1);

    EXPECT_TRUE(happensSoon([&] { return content.opacity() == 1; }));
}

TEST_F(QtPopoverTest, opensImmediatelyWithReducedMotion)
{
    popover.setAnimated(false);
    popover.show();
    EXPECT_EQ(popover.view().rootObject()->opacity(), 1);
    popover.close();

    popover.setAnimated(true);
    reducesMotion = true;
    popover.show();
    EXPECT_EQ(popover.view().rootObject()->opacity(), 1);
}

TEST_F(QtPopoverTest, anOrdinaryWindowHasAFrame)
{
    EXPECT_TRUE(popover.view().flags().testFlag(Qt::FramelessWindowHint));

    popover.turnIntoOrdinaryWindow();

    EXPECT_FALSE(popover.view().flags().testFlag(Qt::FramelessWindowHint));
}

}  // namespace
}  // namespace fadeloom
