// SPDX-License-Identifier: MIT
#include "ui/LegibleColor.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(LegibleColor, measuresPerceivedContrast)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_EQ(contrast(Qt::red, Qt::red), 1);
}

TEST(LegibleColor, keepsLegibleColours)
{
    EXPECT_EQ(legibleBeside(QColor(0x1A, 0x3A, 0x8A), Qt::white), QColor(0x1A, 0x3A, 0x8A));
}

TEST(LegibleColor, existsForEveryColourOnEveryBackground)
{
    for (int hue = 0; hue < 360; hue += 15) {
        for (const int lightness : {0, 60, 128, 200, 255}) {
            const auto color = QColor::fromHsl(hue, 230, lightness);
            for (const auto& ground :
                {QColor(0xEF, 0xED, 0xF4), QColor(0x23, 0x21, 0x2B), QColor(Qt::white)}) {
                const auto legible = legibleBeside(color, ground);
                EXPECT_GE(contrast(legible, ground), 4.5) << color.name().toStdString();
            }
        }
    }
}

TEST(LegibleColor, keepsItsHue)
{
    const auto yellow = QColor::fromHsl(50, 255, 128);

    const auto legible = legibleBeside(yellow, Qt::white);

    EXPECT_NEAR(legible.hslHue(), 50, 2);
    EXPECT_LT(legible.lightness(), yellow.lightness());
}

}  // namespace
}  // namespace fadeloom
