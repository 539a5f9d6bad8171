// SPDX-License-Identifier: MIT
#include "engine/EQPresets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace fadeloom {
namespace {

using testing::ElementsAre;

TEST(EQPresets, areThirtySixFromFlatToVocal)
{
    ASSERT_EQ(EQPresets::all().size(), 36U);
    EXPECT_EQ(EQPresets::all().front().name, "Flat");
    EXPECT_EQ(EQPresets::all().back().name, "Vocal");
}

TEST(EQPresets, areInFourGroups)
{
    std::vector<std::string> titles;
    std::vector<std::size_t> sizes;
    std::vector<EQPreset> inGroups;
    for (const auto& group : EQPresets::groups()) {
        titles.push_back(group.title);
        sizes.push_back(group.presets.size());
        inGroups.insert(inGroups.end(), group.presets.begin(), group.presets.end());
    }

    EXPECT_THAT(titles, ElementsAre("Basic", "Genres", "Moods", "Use Cases"));
    EXPECT_THAT(sizes, ElementsAre(4, 16, 6, 10));
    EXPECT_EQ(inGroups, EQPresets::all());
}

TEST(EQPresets, everyOneHasTenWholeGainsAndANameOfItsOwn)
{
    std::set<std::string> names;
    for (const auto& preset : EQPresets::all()) {
        EXPECT_TRUE(names.insert(preset.name).second) << preset.name;
        ASSERT_EQ(preset.gains.size(), 10U) << preset.name;
        for (const float gain : preset.gains) {
            EXPECT_EQ(gain, std::round(gain)) << preset.name;
            EXPECT_LE(std::abs(gain), 7) << preset.name;
        }
    }
}

TEST(EQPresets, flatChangesNothing)
{
    EXPECT_EQ(EQPresets::flat(), (EQPreset{"Flat", std::vector<float>(10, 0)}));
}

TEST(EQPresets, keepTheirOrderAndTheirCurves)
{
    EXPECT_EQ(EQPresets::all()[1], (EQPreset{"Bass Boost", {7, 6, 5, 3, 1, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(EQPresets::groups()[1].presets[13], (EQPreset{"R&B", {3, 6, 5, 1, -2, -1, 2, 3, 3, 2}}));
    EXPECT_EQ(EQPresets::groups()[2].presets[0], (EQPreset{"Bright", {-2, -1, 0, 0, 1, 2, 3, 4, 5, 5}}));
    EXPECT_EQ(EQPresets::groups()[3].presets[8], (EQPreset{"Spoken Word", {-3, -1, 0, 2, 4, 5, 5, 4, 2, 0}}));
}

}  // namespace
}  // namespace fadeloom
