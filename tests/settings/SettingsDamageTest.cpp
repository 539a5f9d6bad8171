// SPDX-License-Identifier: MIT
// What reading does not repair: which damage affects one app, and which the whole file.
#include "settings/SettingsJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Key;

class DamagedApp : public testing::TestWithParam<const char*> { };

TEST_P(DamagedApp, isDroppedAndTheOthersAreKept)
{
    const auto settings = decodeSettings(R"({"apps": {"before": {"volume": 0.5}, "damaged": )"
        + std::string(GetParam()) + R"(, "later": {}}, "eqAutoHeadroom": false})");

    ASSERT_TRUE(settings) << settings.error().description;
    EXPECT_THAT(settings->apps, ElementsAre(Key("before"), Key("later")));
    EXPECT_EQ(settings->apps.at("before").volume, 0.5F);
    EXPECT_FALSE(settings->eqAutoHeadroom);
}

INSTANTIATE_TEST_SUITE_P(Values, DamagedApp,
    testing::Values(R"({"muted": "yes"})", R"({"volume": "0.5"})", R"({"volume": true})",
        R"({"volume": [1]})", R"({"muted": 0})", R"({"muted": 1.0})", R"({"outputUID": 5})",
        R"({"eqEnabled": {}})", R"({"eqPresetName": 1})", R"({"eqGains": 0})",
        R"({"eqGains": [0,0,0,0,0,0,0,0,0,"0"]})", R"({"eqGains": [0,0,0,0,0,0,0,0,0,null]})",
        R"({"eqGains": [true]})", R"({"eqPreamp": false})", "null", "5", "\"text\"", "[]", "true"));

class DamagedFile : public testing::TestWithParam<const char*> { };

TEST_P(DamagedFile, isRefused)
{
    const auto settings = decodeSettings(GetParam());

    ASSERT_FALSE(settings);
    EXPECT_NE(settings.error().description, "");
    EXPECT_LT(settings.error().description.size(), 200U);
}

INSTANTIATE_TEST_SUITE_P(WrongTypes, DamagedFile,
    testing::Values("null", "[]", "5", "\"settings\"", "true", R"({"apps": []})", R"({"apps": "none"})",
        R"({"focus": 1})", R"({"focus": []})", R"({"focus": {"enabled": 1}})",
        R"({"focus": {"duckLevel": "0.2"}})", R"({"focus": {"duckLevel": true}})",
        R"({"focus": {"callApps": "us.zoom.xos"}})", R"({"focus": {"callApps": [null]}})",
        R"({"focus": {"callApps": ["a", 1]}})", R"({"recordingsFolder": 1})",
        R"({"recordingsFolder": ["/tmp"]})", R"({"knownAppNames": []})", R"({"knownAppNames": {"a": null}})",
        R"({"knownAppNames": {"a": 1}})", R"({"userPresets": {}})", R"({"userPresets": [null]})",
        R"({"userPresets": ["Flat"]})", R"({"userPresets": [{"name": "X"}]})",
        R"({"userPresets": [{"gains": [1,2]}]})", R"({"userPresets": [{"name": null, "gains": []}]})",
        R"({"userPresets": [{"name": "X", "gains": null}]})",
        R"({"userPresets": [{"name": 1, "gains": []}]})",
        R"({"userPresets": [{"name": "X", "gains": ["1"]}]})", R"({"appearance": "dark"})",
        R"({"appearance": {"theme": "sepia"}})", R"({"appearance": {"theme": 1}})",
        R"({"appearance": {"glass": "yes"}})", R"({"volumeLimit": "1.5"})", R"({"volumeLimit": false})",
        R"({"volumeLimit": {}})", R"({"eqAutoHeadroom": 1})", R"({"eqAutoHeadroom": "true"})"));

INSTANTIATE_TEST_SUITE_P(NotJson, DamagedFile,
    testing::Values("", " ", "{", "}", R"({"apps": {)", R"({"volumeLimit": 1,})", R"({"volumeLimit": 1} x)",
        R"({"volumeLimit": NaN})", R"({"volumeLimit": Infinity})", R"({"volumeLimit": 01})",
        R"({"volumeLimit": +1})", R"({"volumeLimit": .5})", R"({"volumeLimit": 1.})",
        R"({"volumeLimit": 1e})", R"({"volumeLimit": 0x1})", R"({"volumeLimit": 01e400})",
        R"({"volumeLimit": 1e400e1})", R"({'volumeLimit': 1})", "{volumeLimit: 1}", "// note\n{}",
        R"({"a": "\x"})", R"({"a": "\ud800"})", "{\"a\": \"\xFF\"}", "{\"a\": \"\xC3\"}",
        "{\"\xED\xA0\x80\": 1}", "{\"a\": \"line\nfeed\"}", "\xFF\xFE{\0}\0", R"({"a": "open)"));

TEST(SettingsDamage, isDescribedByWhereItIs)
{
    const auto descriptionOf = [](std::string_view text) { return decodeSettings(text).error().description; };

    EXPECT_EQ(descriptionOf("{\n  \"volumeLimit\": nan\n}"), "not JSON at line 2, column 19");
    EXPECT_EQ(descriptionOf("x"), "not JSON at line 1, column 1");
    EXPECT_EQ(descriptionOf(""), "not JSON at line 1, column 1");
    EXPECT_EQ(descriptionOf(R"({"focus": {"duckLevel": "0.2"}})"),
        "focus: duckLevel: expected number, found string");
    EXPECT_EQ(descriptionOf(R"({"appearance": {"theme": "sepia"}})"), "appearance: theme: no such theme");
    EXPECT_EQ(descriptionOf(R"({"appearance": {"theme": 1, "glass": 2}, "focus": 3})"),
        "focus: expected object, found number")
        << "the first one in the record's order";
}

TEST(SettingsDamage, isDescribedByWhatShouldHaveBeenThere)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"[]", "expected object, found array"},
        {R"({"apps": 1})", "apps: expected object, found number"},
        {R"({"appearance": "dark"})", "appearance: expected object, found string"},
        {R"({"appearance": {"theme": 1}})", "appearance: theme: expected string, found number"},
        {R"({"eqAutoHeadroom": 1})", "eqAutoHeadroom: expected boolean, found number"},
        {R"({"focus": {"callApps": {}}})", "focus: callApps: expected array, found object"},
        {R"({"knownAppNames": []})", "knownAppNames: expected object, found array"},
        {R"({"recordingsFolder": 5})", "recordingsFolder: expected string, found number"},
        {R"({"userPresets": [1]})", "userPresets: expected object, found number"},
        {R"({"userPresets": [{"name": "X"}]})", "userPresets: a preset needs a name and gains"},
    };
    for (const auto& [text, description] : cases)
        EXPECT_EQ(decodeSettings(text).error().description, description) << text;
}

TEST(SettingsDamage, endlessNestingDoesNotCrash)
{
    constexpr std::size_t depth = 200'000;
    const std::string opening(depth, '[');
    const std::string closing(depth, ']');
    std::string objects;
    for (std::size_t i = 0; i < depth; ++i)
        objects += "{\"apps\":";

    EXPECT_FALSE(decodeSettings(opening));
    EXPECT_FALSE(decodeSettings(opening + closing));
    EXPECT_FALSE(decodeSettings(objects));
    EXPECT_TRUE(decodeSettings("{\"later\": " + opening + closing + "}"));
    EXPECT_TRUE(decodeSettings("{\"apps\": {\"a\": " + opening + closing + "}}"));
}

TEST(SettingsDamage, everyBeginningOfAFileIsRefused)
{
    const std::string whole = encodeSettings(SettingsData());
    const auto end = whole.rfind('}');

    for (std::size_t length = 0; length <= end; ++length)
        ASSERT_FALSE(decodeSettings(whole.substr(0, length))) << length;
    EXPECT_TRUE(decodeSettings(whole));
}

TEST(SettingsDamage, noByteOfAFileCanBeChangedIntoACrash)
{
    SettingsData settings;
    settings.apps["org.music"].outputUID = "usb";
    settings.userPresets = {{"Mine", std::vector<float>(10, 1.5F)}};
    const std::string whole = encodeSettings(settings);

    for (std::size_t i = 0; i < whole.size(); ++i) {
        for (const char byte : {'\0', '"', '\\', '{', ']', '9', '-', 'e', '\xFF', '\x80', ' '}) {
            auto changed = whole;
            changed[i] = byte;
            const auto read = decodeSettings(changed);
            ASSERT_TRUE(read || read.error().description != "");
        }
    }
}

}  // namespace
}  // namespace fadeloom
