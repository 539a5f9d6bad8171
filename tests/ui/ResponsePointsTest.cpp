// SPDX-License-Identifier: MIT
#include "ui/ResponsePoints.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace fadeloom {
namespace {

TEST(ResponsePoints, withoutGainsTheCurveIsTheMiddleLine)
{
    const auto points = responsePoints(std::vector<float>(10, 0), 0);

    EXPECT_TRUE(std::ranges::all_of(points, [](double point) { return responseY(point, 56) == 28; }));
}

TEST(ResponsePoints, thePreampLiftsTheWholeCurve)
{
    const auto points = responsePoints(std::vector<float>(10, 0), -6);

    EXPECT_TRUE(std::ranges::all_of(points, [](double point) { return point == -6; }));
}

TEST(ResponsePoints, valuesBeyondTheRangeStayAtTheEdge)
{
    const auto points = responsePoints(std::vector<float>(10, 12), 12);

    EXPECT_GT(points.at(48), responseRangeDB);
    EXPECT_EQ(responseY(points.at(48), 56), 0);
    EXPECT_EQ(responseY(-100, 56), 56);
}

}  // namespace
}  // namespace fadeloom
