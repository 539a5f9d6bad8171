// SPDX-License-Identifier: MIT
// What reading repairs, and what it accepts as is.
#include "settings/SettingsJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace fadeloom {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

SettingsData decoded(std::string_view text)
{
    const auto settings = decodeSettings(text);
    EXPECT_TRUE(settings) << settings.error().description;
    return settings.value_or(SettingsData());
}

/// Of the app "a" in a file that contains nothing else.
AppAudioSettings decodedApp(const std::string& members)
{
    const auto settings = decoded(R"({"volumeLimit": 2, "apps": {"a": {)" + members + "}}}");
    EXPECT_TRUE(settings.apps.contains("a"));
    return settings.apps.contains("a") ? settings.apps.at("a") : AppAudioSettings();
}

TEST(SettingsDecoding, emptyObjectIsTheDefault)
{
    EXPECT_EQ(decoded("{}"), SettingsData());
    EXPECT_EQ(decoded("\xEF\xBB\xBF {\n}\r\n\t"), SettingsData()) << "byte order mark and white space";
}

TEST(SettingsDecoding, nullMeansTheDefault)
{
    EXPECT_EQ(decoded(R"({"apps": null, "focus": null, "recordingsFolder": null, "knownAppNames": null,
        "userPresets": null, "appearance": null, "volumeLimit": null, "eqAutoHeadroom": null})"),
        SettingsData());
    EXPECT_EQ(decoded(R"({"focus": {"enabled": null, "duckLevel": null, "callApps": null},
        "appearance": {"theme": null, "glass": null, "animations": null, "levelMeters": null}})"),
        SettingsData());
    EXPECT_EQ(decodedApp(R"("volume": null, "muted": null, "outputUID": null, "eqEnabled": null,
        "eqGains": null, "eqPreamp": null)"),
        AppAudioSettings());
}

TEST(SettingsDecoding, uneditedCallAppsAreTheDefaults)
{
    const DefaultCallApps defaults{.current = {"new", "newer"}, .former = {"old", "older"}};
    const auto callApps = [&](std::string_view text) {
        return decodeSettings(text, defaults)->focus.callApps;
    };

    for (const auto* const untouched : {"{}", R"({"focus": {}})", R"({"focus": {"callApps": null}})",
             R"({"focus": {"callApps": ["old", "older"]}})"})
        EXPECT_EQ(callApps(untouched), defaults.current) << untouched;

    EXPECT_THAT(callApps(R"({"focus": {"callApps": ["older", "old"]}})"), ElementsAre("older", "old"));
    EXPECT_THAT(callApps(R"({"focus": {"callApps": ["old"]}})"), ElementsAre("old"));
    EXPECT_THAT(callApps(R"({"focus": {"callApps": ["old", "older", "mine"]}})"),
        ElementsAre("old", "older", "mine"));
    EXPECT_THAT(callApps(R"({"focus": {"callApps": []}})"), IsEmpty());
    const DefaultCallApps unchanged{.current = {"new"}};
    EXPECT_THAT(decodeSettings(R"({"focus": {"callApps": []}})", unchanged)->focus.callApps, IsEmpty())
        << "no former list is not an empty one";
}

TEST(SettingsDecoding, unknownKeysAreIgnored)
{
    EXPECT_EQ(decoded(R"({"version": 7, "later": {"deep": [1, {"x": null}]}, "focus": {"mood": "calm"}})"),
        SettingsData());
    EXPECT_EQ(decodedApp(R"("balance": -0.5)"), AppAudioSettings());
}

TEST(SettingsDecoding, readsEveryField)
{
    const auto settings = decoded(R"({
        "apps": {"org.music": {"volume": 0.5, "muted": true, "outputUID": "usb", "eqEnabled": true,
            "eqPresetName": "Mine", "eqGains": [1,2,3,4,5,6,7,8,9,10], "eqPreamp": -3.5}},
        "focus": {"enabled": false, "duckLevel": 0.4, "callApps": ["x", "y"], "declinedCallApps": ["z"]},
        "recordingsFolder": "/tmp/r",
        "knownAppNames": {"org.music": "Music"},
        "userPresets": [{"name": "Mine", "gains": [1,2,3,4,5,6,7,8,9,10]}],
        "appearance": {"theme": "dark", "glass": false, "animations": false, "levelMeters": false},
        "volumeLimit": 1.5, "eqAutoHeadroom": false})");

    SettingsData expected;
    expected.apps["org.music"] = {0.5F, true, "usb", true, "Mine", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, -3.5F};
    expected.focus = {false, 0.4F, {"x", "y"}, {"z"}};
    expected.recordingsFolder = "/tmp/r";
    expected.knownAppNames = {{"org.music", "Music"}};
    expected.userPresets = {{"Mine", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}};
    expected.appearance = {Theme::dark, false, false, false};
    expected.volumeLimit = 1.5F;
    expected.eqAutoHeadroom = false;
    EXPECT_EQ(settings, expected);
}

TEST(SettingsDecoding, volumeIsBroughtIntoItsRange)
{
    EXPECT_EQ(decodedApp(R"("volume": 3.5)").volume, 2.0F);
    EXPECT_EQ(decodedApp(R"("volume": -1)").volume, 0.0F);
    EXPECT_EQ(decodedApp(R"("volume": 1.25)").volume, 1.25F);
}

TEST(SettingsDecoding, volumeIsLoweredToTheLimit)
{
    const auto settings =
        decoded(R"({"volumeLimit": 1.5, "apps": {"loud": {"volume": 1.8}, "soft": {"volume": 0.3}}})");

    EXPECT_EQ(settings.apps.at("loud").volume, 1.5F);
    EXPECT_EQ(settings.apps.at("soft").volume, 0.3F);
}

TEST(SettingsDecoding, limitThatCannotBeChosenIsOne)
{
    for (const auto* limit : {"1.75", "0", "-1", "3", "1e39", "1e400"}) {
        const auto settings =
            decoded(R"({"apps": {"a": {"volume": 1.8}}, "volumeLimit": )" + std::string(limit) + "}");
        EXPECT_EQ(settings.volumeLimit, 1.0F) << limit;
        EXPECT_EQ(settings.apps.at("a").volume, 1.0F) << limit;
    }
    for (const auto* limit : {"1", "1.25", "1.5", "2.0", "15e-1"})
        EXPECT_EQ(decoded(R"({"volumeLimit": )" + std::string(limit) + "}").volumeLimit, std::stof(limit));
}

TEST(SettingsDecoding, gainsOfAnotherCountBecomeFlatAndTheRestStays)
{
    for (const auto* gains : {"[]", "[1,2,3,4,5,6,7,8,9]", "[1,2,3,4,5,6,7,8,9,10,11]"}) {
        const auto app = decodedApp(R"("volume": 0.5, "eqEnabled": true, "eqGains": )" + std::string(gains));
        EXPECT_THAT(app.eqGains, Each(0.0F)) << gains;
        EXPECT_EQ(app.volume, 0.5F);
        EXPECT_TRUE(app.eqEnabled);
    }
}

TEST(SettingsDecoding, gainsAndPreampAreBroughtIntoTheirRange)
{
    const auto app =
        decodedApp(R"("eqGains": [-13, -12, 12, 12.5, 1e39, -1e400, 0, 1, 2, 3], "eqPreamp": 99)");

    EXPECT_THAT(app.eqGains, ElementsAre(-12, -12, 12, 12, 12, -12, 0, 1, 2, 3));
    EXPECT_EQ(app.eqPreamp, 12.0F);
    EXPECT_EQ(decodedApp(R"("eqPreamp": -12.01)").eqPreamp, -12.0F);
}

TEST(SettingsDecoding, presetNameIsFlatWhenMissingAndNoneWhenNull)
{
    EXPECT_EQ(decodedApp("").eqPresetName, "Flat");
    EXPECT_EQ(decodedApp(R"("eqPresetName": null)").eqPresetName, std::nullopt);
    EXPECT_EQ(decodedApp(R"("eqPresetName": "R&B")").eqPresetName, "R&B");
}

TEST(SettingsDecoding, userPresetsWithoutTenGainsAreDroppedAndTheOthersKeepTheirOrder)
{
    const auto settings = decoded(R"({"userPresets": [
        {"name": "Z", "gains": [1,1,1,1,1,1,1,1,1,1]},
        {"name": "nine", "gains": [1,1,1,1,1,1,1,1,1]},
        {"name": "two", "gains": [1,2]},
        {"name": "eleven", "gains": [1,1,1,1,1,1,1,1,1,1,1]},
        {"name": "A", "gains": [2,2,2,2,2,2,2,2,2,1e400]}]})");

    ASSERT_EQ(settings.userPresets.size(), 2U);
    EXPECT_EQ(settings.userPresets[0].name, "Z");
    EXPECT_EQ(settings.userPresets[1].name, "A");
    EXPECT_EQ(settings.userPresets[1].gains[9], std::numeric_limits<float>::max());
}

TEST(SettingsDecoding, duckLevelIsBroughtIntoItsRange)
{
    EXPECT_EQ(decoded(R"({"focus": {"duckLevel": 1.5}})").focus.duckLevel, 1.0F);
    EXPECT_EQ(decoded(R"({"focus": {"duckLevel": -0.5}})").focus.duckLevel, 0.0F);
}

TEST(SettingsDecoding, emptyListOfCallAppsStaysEmpty)
{
    EXPECT_THAT(decoded(R"({"focus": {"callApps": []}})").focus.callApps, IsEmpty());
}

TEST(SettingsDecoding, lastOfTwoEqualKeysCounts)
{
    const auto settings = decoded(R"({"volumeLimit": 1.5, "volumeLimit": 2,
        "apps": {"a": {"volume": "x"}, "a": {"volume": 0.5, "volume": 0.25}}})");

    EXPECT_EQ(settings.volumeLimit, 2.0F);
    EXPECT_EQ(settings.apps.at("a").volume, 0.25F);
}

TEST(SettingsDecoding, namesMayHoldAnyCharacter)
{
    const auto settings = decoded(R"({"knownAppNames": {"\u0000": "\ud83c\udfb5\n", "": "żółw"}})");

    EXPECT_THAT(settings.knownAppNames,
        ElementsAre(Pair("", "żółw"), Pair(std::string(1, '\0'), "\xF0\x9F\x8E\xB5\n")));
}

}  // namespace
}  // namespace fadeloom
