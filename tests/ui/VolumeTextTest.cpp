// SPDX-License-Identifier: MIT
#include "ui/VolumeText.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(VolumeText, aSliderSnapsToTheAppsOwnLevel)
{
    EXPECT_EQ(snappedVolume(0.97, 2), 1);
    EXPECT_EQ(snappedVolume(1.03, 2), 1);
    EXPECT_EQ(snappedVolume(0.95, 2), 0.95F);
    EXPECT_EQ(snappedVolume(1.05, 2), 1.05F);
}

TEST(VolumeText, aSliderStoresNothingAboveTheLimit)
{
    EXPECT_EQ(snappedVolume(1.5, 1.25F), 1.25F);
    EXPECT_EQ(snappedVolume(1.03, 1), 1);
    EXPECT_EQ(snappedVolume(-0.5, 1), 0);
}

TEST(VolumeText, percentagesAreIntegers)
{
    EXPECT_EQ(percentText(0.854), "85%");
    EXPECT_EQ(percentText(0.855), "86%");
    EXPECT_EQ(percentText(0), "0%");
    EXPECT_EQ(percentText(1.25), "125%");
}

TEST(VolumeText, theDuckLevelGoesInStepsOfFivePercent)
{
    EXPECT_EQ(steppedDuckLevel(0.22), 0.2F);
    EXPECT_EQ(steppedDuckLevel(0.23), 0.25F);
    EXPECT_EQ(steppedDuckLevel(0.7), 0.5F);
    EXPECT_EQ(steppedDuckLevel(-1), 0);
}

}  // namespace
}  // namespace fadeloom
