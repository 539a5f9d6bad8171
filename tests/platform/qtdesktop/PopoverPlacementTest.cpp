// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/PopoverPlacement.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace fadeloom {
namespace {

constexpr QSize panel{380, 465};
constexpr QRect whole{0, 0, 1280, 800};

// A bar of 24 at one edge.
const ScreenArea barAtTop{whole, {0, 24, 1280, 776}};
const ScreenArea barAtBottom{whole, {0, 0, 1280, 776}};
const ScreenArea barAtLeft{whole, {24, 0, 1256, 800}};
const ScreenArea barAtRight{whole, {0, 0, 1256, 800}};
const ScreenArea barsUnknown{whole, whole};
// To its right: at scale 1.5, with a separate bar at the bottom.
const ScreenArea second{{1280, 0, 1280, 720}, {1280, 0, 1280, 690}, 1.5};

struct Case {
    std::string name;
    std::optional<QRect> icon;
    std::vector<ScreenArea> screens;
    PopoverPlacement expected;
    QSize size = panel;
};

void PrintTo(const Case& each, std::ostream* out)
{
    *out << each.name;
}

class PopoverPlacementTable : public testing::TestWithParam<Case> { };

TEST_P(PopoverPlacementTable, isWhereItIsExpected)
{
    const auto& [name, icon, screens, expected, size] = GetParam();

    const auto place = placePopover(icon, size, screens);

    EXPECT_EQ(place.screen, expected.screen);
    EXPECT_EQ(place.edge, expected.edge);
    EXPECT_EQ(place.position, expected.position) << place.position.x() << ", " << place.position.y();
}

using enum ScreenEdge;

INSTANTIATE_TEST_SUITE_P(EveryEdge, PopoverPlacementTable,
    testing::Values(Case{"top", QRect(600, 0, 24, 24), {barAtTop}, {0, top, {421, 30}}},
        Case{"bottom", QRect(600, 778, 22, 22), {barAtBottom}, {0, bottom, {420, 305}}},
        Case{"left", QRect(0, 400, 24, 24), {barAtLeft}, {0, left, {30, 179}}},
        Case{"right", QRect(1256, 400, 24, 24), {barAtRight}, {0, right, {870, 179}}},
        Case{"aClickInTheBarIsNotCovered", QRect(600, 5, 1, 1), {barAtTop}, {0, top, {410, 30}}},
        Case{"aBarThatNobodyTellsOf", QRect(600, 788, 1, 1), {barsUnknown}, {0, bottom, {410, 317}}}));

INSTANTIATE_TEST_SUITE_P(Corners, PopoverPlacementTable,
    testing::Values(Case{"itStaysOnTheScreen", QRect(1250, 0, 24, 24), {barAtTop}, {0, top, {894, 30}}},
        Case{"atItsOtherEnd", QRect(0, 0, 24, 24), {barAtTop}, {0, top, {6, 30}}},
        Case{"theEdgeWithTheBarCounts", QRect(1268, 6, 2, 10), {barAtTop}, {0, top, {894, 30}}},
        Case{"andSoAtTheSide", QRect(4, 788, 10, 10), {barAtLeft}, {0, left, {30, 329}}},
        Case{"onePanelIsTooHigh", QRect(600, 0, 24, 24), {barAtTop}, {0, top, {421, 30}}, {380, 2000}}));

INSTANTIATE_TEST_SUITE_P(WithoutAnIcon, PopoverPlacementTable,
    testing::Values(Case{"top", {}, {barAtTop}, {0, top, {894, 30}}},
        Case{"bottom", {}, {barAtBottom}, {0, bottom, {894, 305}}},
        Case{"left", {}, {barAtLeft}, {0, left, {30, 329}}},
        Case{"right", {}, {barAtRight}, {0, right, {870, 329}}},
        Case{"noBar", {}, {barsUnknown}, {0, top, {894, 6}}}));

INSTANTIATE_TEST_SUITE_P(TwoScreens, PopoverPlacementTable,
    testing::Values(
        Case{"onTheIconsOwn", QRect(2400, 695, 20, 20), {barAtTop, second}, {1, bottom, {2174, 219}}},
        Case{"onTheFirst", QRect(1240, 2, 20, 20), {barAtTop, second}, {0, top, {894, 30}}},
        Case{"anIconBetweenThemIsOnTheFirst", QRect(-500, 3, 20, 20), {barAtTop, second},
            {0, left, {6, 30}}}));

TEST(IconPlace, isTheReportedOneNearAnEdge)
{
    EXPECT_EQ(iconPlace({1200, 12}, {barAtTop}), QRect(1200, 12, 1, 1));
    EXPECT_EQ(iconPlace({12, 700}, {barAtLeft}), QRect(12, 700, 1, 1));
}

TEST(IconPlace, isUnknownIfImplausible)
{
    EXPECT_FALSE(iconPlace({600, 400}, {barAtTop})) << "the middle of the screen";
    EXPECT_FALSE(iconPlace({9, 12}, {barAtTop})) << "counted from the icon's own corner";
    EXPECT_FALSE(iconPlace({0, 0}, {barAtTop}));
    EXPECT_FALSE(iconPlace({5000, 12}, {barAtTop})) << "on no screen";
}

TEST(IconPlace, isReportedInDevicePixels)
{
    const ScreenArea scaled{{0, 0, 1280, 800}, {0, 0, 1280, 760}, 1.5};

    EXPECT_EQ(iconPlace({1590, 1170}, {scaled}), QRect(1060, 780, 1, 1));
    EXPECT_EQ(iconPlace({1280 + 1500, 1050}, {barAtTop, second}), QRect(1280 + 1000, 700, 1, 1));
}

TEST(WindowPlace, isCentredUntilItIsMoved)
{
    EXPECT_EQ(placeWindow({}, panel, {barAtTop, second}), QPoint(450, 179));
    EXPECT_EQ(placeWindow(QPoint(700, 300), panel, {barAtTop, second}), QPoint(700, 300));
    EXPECT_EQ(placeWindow(QPoint(1500, 100), panel, {barAtTop, second}), QPoint(1500, 100));
}

TEST(WindowPlace, isCentredAgainIfItsScreenIsGone)
{
    EXPECT_EQ(placeWindow(QPoint(1500, 100), panel, {barAtTop}), QPoint(450, 179));
    EXPECT_EQ(placeWindow(QPoint(1270, 790), panel, {barAtTop}), QPoint(450, 179));
}

TEST(AvailablePart, isBesideTheBar)
{
    EXPECT_EQ(availablePart(whole, {1280, 776}, top), barAtTop.free);
    EXPECT_EQ(availablePart(whole, {1280, 776}, bottom), barAtBottom.free);
    EXPECT_EQ(availablePart(whole, {1256, 800}, left), barAtLeft.free);
    EXPECT_EQ(availablePart(whole, {1256, 800}, right), barAtRight.free);
    EXPECT_EQ(availablePart(whole, {1220, 776}, top), barAtTop.free) << "whatever stands at the sides";
}

}  // namespace
}  // namespace fadeloom
