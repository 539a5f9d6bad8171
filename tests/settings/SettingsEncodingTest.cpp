// SPDX-License-Identifier: MIT
#include "settings/SettingsJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace fadeloom {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

TEST(SettingsEncoding, writesOneMemberPerLineWithKeysInOrder)
{
    SettingsData settings;
    settings.apps["org.music"] = {};
    settings.focus.callApps = {"b", "a"};

    EXPECT_EQ(encodeSettings(settings), R"({
  "appearance": {
    "animations": true,
    "glass": true,
    "levelMeters": true,
    "theme": "system"
  },
  "apps": {
    "org.music": {
      "eqEnabled": false,
      "eqGains": [
        0,
        0,
        0,
        0,
        0,
        0,
        0,
        0,
        0,
        0
      ],
      "eqPreamp": 0,
      "eqPresetName": "Flat",
      "muted": false,
      "volume": 1
    }
  },
  "eqAutoHeadroom": true,
  "focus": {
    "callApps": [
      "b",
      "a"
    ],
    "duckLevel": 0.2,
    "enabled": true
  },
  "knownAppNames": {},
  "userPresets": [],
  "volumeLimit": 1
}
)");
}

TEST(SettingsEncoding, omitsAbsentValuesExceptThePresetName)
{
    SettingsData settings;
    settings.apps["a"].eqPresetName = std::nullopt;
    EXPECT_THAT(encodeSettings(settings), HasSubstr("\"eqPresetName\": null"));
    EXPECT_THAT(encodeSettings(settings), Not(HasSubstr("outputUID")));
    EXPECT_THAT(encodeSettings(settings), Not(HasSubstr("recordingsFolder")));

    settings.apps["a"].outputUID = "usb";
    settings.recordingsFolder = "/tmp";
    EXPECT_THAT(encodeSettings(settings), HasSubstr("\"outputUID\": \"usb\""));
    EXPECT_THAT(encodeSettings(settings),
        testing::ContainsRegex("knownAppNames[^a-z]*recordingsFolder.*\n.*userPresets"));
}

TEST(SettingsEncoding, writesDeclinedCallAppsOnlyWhereThereAreSome)
{
    SettingsData settings;
    EXPECT_THAT(encodeSettings(settings), Not(HasSubstr("declinedCallApps")));

    settings.focus.declinedCallApps = {"a"};
    EXPECT_THAT(encodeSettings(settings), HasSubstr("\"declinedCallApps\": [\n      \"a\"\n    ]"));
    EXPECT_EQ(decodeSettings(encodeSettings(settings)), settings);
}

TEST(SettingsEncoding, presetHasItsNameAndItsGainsOnly)
{
    SettingsData settings;
    settings.userPresets = {{"R&B", {1, 2.5F}}, {"Hip-Hop", {}}};

    EXPECT_THAT(encodeSettings(settings), HasSubstr(R"("userPresets": [
    {
      "gains": [
        1,
        2.5
      ],
      "name": "R&B"
    },
    {
      "gains": [],
      "name": "Hip-Hop"
    }
  ])"));
}

TEST(SettingsEncoding, whatIsWrittenIsReadBack)
{
    SettingsData settings;
    settings.apps["org.music"] = {
        0.7F, true, "usb", true, std::nullopt, {-12, 0.1F, 3, 4, 5, 6, 7, 8, 9, 12}, -1.3F};
    settings.apps["org.\"quoted\"\\"] = {};
    settings.focus = {false, 0.33F, {}};
    settings.recordingsFolder = "/home/ż/\t";
    settings.knownAppNames = {{"org.music", "Mu\nsic \xF0\x9F\x8E\xB5"}};
    settings.userPresets = {{"R&B", std::vector<float>(10, 0.1F)}, {"Hip-Hop", std::vector<float>(10, -7)}};
    settings.appearance = {Theme::light, false, true, false};
    settings.volumeLimit = 1.25F;
    settings.eqAutoHeadroom = false;

    EXPECT_EQ(decodeSettings(encodeSettings(settings)), settings);
    EXPECT_EQ(encodeSettings(*decodeSettings(encodeSettings(settings))), encodeSettings(settings));
}

TEST(SettingsEncoding, floatsAreShortAndComeBackAsTheyWere)
{
    SettingsData settings;
    settings.userPresets = {{"Floats",
        {0.2F, 0.1F, 1.1F, 0.33333334F, 1e-7F, 16777216, -0.0F, 1.147e9F, 7.038531e-26F,
            std::numeric_limits<float>::denorm_min()}}};

    const auto text = encodeSettings(settings);

    for (const auto* number : {" 0.2,", " 0.1,", " 1.1,", " 0.33333334,", " 1e-07,", " 16777216,", " -0,",
             " 1.147e+09,", " 7.038531e-26,", " 1e-45\n"})
        EXPECT_THAT(text, HasSubstr(number));
    EXPECT_EQ(decodeSettings(text), settings);
}

TEST(SettingsEncoding, anyFiniteFloatRoundTripsBitForBit)
{
    std::mt19937 random(7);
    SettingsData settings;
    for (int preset = 0; preset < 20000; ++preset) {
        auto& gains = settings.userPresets.emplace_back().gains;
        while (gains.size() < 10) {
            const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
            if (std::isfinite(number))
                gains.push_back(number);
        }
    }

    const auto read = decodeSettings(encodeSettings(settings));

    ASSERT_TRUE(read);
    ASSERT_EQ(read->userPresets.size(), settings.userPresets.size());
    for (std::size_t preset = 0; preset < settings.userPresets.size(); ++preset) {
        for (std::size_t band = 0; band < 10; ++band)
            ASSERT_EQ(std::bit_cast<std::uint32_t>(read->userPresets[preset].gains[band]),
                std::bit_cast<std::uint32_t>(settings.userPresets[preset].gains[band]));
    }
}

TEST(SettingsEncoding, nonFiniteNumbersBecomeTheirDefaults)
{
    for (const float bad : {notANumber, infinite, -infinite}) {
        SettingsData settings;
        settings.apps["a"] = {.volume = bad, .eqGains = {bad, 5}, .eqPreamp = bad};
        settings.focus.duckLevel = bad;
        settings.volumeLimit = bad;
        settings.userPresets = {{"P", {bad, 1, 1, 1, 1, 1, 1, 1, 1, 1}}};

        const auto read = decodeSettings(encodeSettings(settings));

        ASSERT_TRUE(read);
        EXPECT_EQ(read->apps.at("a"), (AppAudioSettings{.eqGains = {0, 5}}));
        EXPECT_EQ(read->focus.duckLevel, 0.2F);
        EXPECT_EQ(read->volumeLimit, 1.0F);
        EXPECT_EQ(read->userPresets[0].gains[0], 0.0F);
    }
}

TEST(SettingsEncoding, bytesThatAreNotTextAreReplacedAndTheRestIsKept)
{
    SettingsData settings;
    settings.apps["org.\xFF"].outputUID = "usb \xC3";
    settings.knownAppNames = {{"\x80", "M\xFEusic"}};
    settings.userPresets = {{"\xED\xA0\x80", std::vector<float>(10, 1)}};
    settings.recordingsFolder = "/music/\xF0\x9F";

    const auto read = decodeSettings(encodeSettings(settings));

    ASSERT_TRUE(read) << read.error().description;
    EXPECT_EQ(read->apps.at("org.\uFFFD").outputUID, "usb \uFFFD");
    EXPECT_EQ(read->knownAppNames.at("\uFFFD"), "M\uFFFDusic");
    EXPECT_EQ(read->userPresets[0].gains, settings.userPresets[0].gains);
    EXPECT_EQ(read->recordingsFolder, "/music/\uFFFD");
}

}  // namespace
}  // namespace fadeloom
