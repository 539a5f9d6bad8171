// SPDX-License-Identifier: MIT
#include "engine/EQPresets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <sstream>

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

TEST(EQPresets, eachHasTenIntegerGainsAndAUniqueName)
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

TEST(EQPresets, areTheseWithTheseGains)
{
    std::ostringstream told;
    for (const auto& group : EQPresets::groups()) {
        for (const auto& preset : group.presets) {
            told << group.title << ": " << preset.name;
            for (const float gain : preset.gains)
                told << ' ' << gain;
            told << '\n';
        }
    }

    EXPECT_EQ(told.str(), R"(Basic: Flat 0 0 0 0 0 0 0 0 0 0
Basic: Bass Boost 7 6 5 3 1 0 0 0 0 0
Basic: Treble Boost 0 0 0 0 0 1 3 5 6 7
Basic: Loudness 4 3 1 0 -1 -1 0 1 3 4
Genres: Acoustic 3 2 1 2 3 2 2 3 2 2
Genres: Blues 2 3 3 1 -2 0 2 3 3 2
Genres: Classical 5 4 3 2 -2 -2 0 2 3 4
Genres: Country 2 2 1 1 0 0 1 2 3 3
Genres: Dance 4 6 5 0 -2 -2 0 2 4 4
Genres: Electronic 5 4 1 0 -2 2 1 2 4 5
Genres: Funk 4 4 2 0 -2 -2 0 2 3 3
Genres: Hip-Hop 5 4 2 1 -1 -1 1 0 2 3
Genres: Jazz 4 3 2 2 -2 -2 0 2 3 4
Genres: Latin 3 2 0 0 -2 -2 -2 0 3 4
Genres: Metal 6 4 0 0 2 -1 0 3 5 5
Genres: Pop -1 -1 0 2 4 4 2 0 -1 -1
Genres: Reggae 0 0 0 -3 0 3 3 0 0 0
Genres: R&B 3 6 5 1 -2 -1 2 3 3 2
Genres: Rock 5 4 3 1 -1 -1 1 3 4 5
Genres: Soul 3 4 3 1 -1 0 2 3 3 2
Moods: Bright -2 -1 0 0 1 2 3 4 5 5
Moods: Late Night 2 2 1 0 -1 -1 0 1 2 3
Moods: Lounge -1 1 2 1 -1 -1 0 1 2 1
Moods: Powerful 4 3 2 1 0 0 1 3 4 5
Moods: Soft 2 1 0 -1 -2 -2 -1 0 1 2
Moods: Warm 3 3 2 1 0 -1 -1 0 1 1
Use Cases: Car Audio 4 4 2 0 -1 -1 0 3 4 5
Use Cases: Cinema 4 5 3 1 0 0 1 3 4 3
Use Cases: Club 5 5 4 2 0 0 0 2 4 4
Use Cases: Headphones 3 5 4 2 -1 -1 2 3 4 5
Use Cases: Large Hall 3 3 2 1 0 -1 -1 0 2 3
Use Cases: Piano 2 1 0 2 3 2 3 4 3 3
Use Cases: Podcast -2 -1 1 3 5 5 4 2 0 -1
Use Cases: Small Speakers 5 4 3 2 1 0 -1 -2 -1 0
Use Cases: Spoken Word -3 -1 0 2 4 5 5 4 2 0
Use Cases: Vocal -2 -2 -1 1 3 3 3 2 1 0
)");
}

}  // namespace
}  // namespace fadeloom
