// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/PanelPlace.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

constexpr QRect screen{0, 24, 1280, 776};  // Below a bar of 24.
constexpr QSize panel{380, 465};

TEST(PanelPlace, isBelowAnIconAtTheTop)
{
    EXPECT_EQ(panelPlace({600, 0, 24, 24}, panel, screen), QPoint(421, 30));
}

TEST(PanelPlace, isAboveAnIconAtTheBottom)
{
    const QRect freeAbove{0, 0, 1280, 776};

    EXPECT_EQ(panelPlace({600, 778, 22, 22}, panel, freeAbove), QPoint(420, 305));
}

TEST(PanelPlace, staysOnTheScreen)
{
    EXPECT_EQ(panelPlace({1250, 0, 24, 24}, panel, screen).x(), 1280 - 380 - 6);
    EXPECT_EQ(panelPlace({0, 0, 24, 24}, panel, screen).x(), 6);
}

TEST(PanelPlace, followsTheIconsScreen)
{
    const QRect second{1280, 0, 1920, 1080};

    EXPECT_TRUE(second.contains(QRect(panelPlace({3100, 2, 20, 20}, panel, second), panel)));
}

TEST(PanelPlace, withoutAnIconIsTheUpperRightCorner)
{
    EXPECT_EQ(panelPlace({}, panel, screen), QPoint(1280 - 380 - 6, 30));
}

TEST(PanelPlace, ofAPanelThatIsTooHighBeginsAtTheTop)
{
    EXPECT_EQ(panelPlace({600, 0, 24, 24}, {380, 2000}, screen).y(), 30);
}

}  // namespace
}  // namespace fadeloom
