// SPDX-License-Identifier: MIT
#include "commands/EventText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

AppEntry app(const std::string& bundleID, bool isPlaying, const std::string& name = "My Player")
{
    return {.bundleID = bundleID, .name = name, .isPlaying = isPlaying};
}

std::vector<std::string> lines(const Events& events)
{
    std::vector<std::string> texts;
    for (const auto& each : events)
        texts.push_back(eventLine(each));
    return texts;
}

using Apps = std::vector<AppEntry>;
using Devices = std::vector<OutputDevice>;

TEST(Events, reportAppsThatAppearPlayAndDisappear)
{
    EXPECT_THAT(lines(appEvents({}, Apps{app("com.a", true)})),
        ElementsAre("app appeared com.a \"My Player\"", "app playing com.a"));
    EXPECT_THAT(
        lines(appEvents({}, Apps{app("com.a", false)})), ElementsAre("app appeared com.a \"My Player\""));
    EXPECT_THAT(lines(appEvents(Apps{app("com.a", true)}, Apps{app("com.a", false)})),
        ElementsAre("app silent com.a"));
    EXPECT_THAT(lines(appEvents(Apps{app("com.a", false)}, Apps{app("com.a", true)})),
        ElementsAre("app playing com.a"));
    EXPECT_THAT(lines(appEvents(Apps{app("com.a", true)}, {})), ElementsAre("app disappeared com.a"));
}

TEST(Events, ignoreReordering)
{
    const auto a = app("com.a", true);
    const auto b = app("com.b", true);

    EXPECT_THAT(lines(appEvents(Apps{a, b}, Apps{b, a})), IsEmpty());
}

TEST(Events, reportChangedOutputs)
{
    EXPECT_THAT(lines(appOutputEvents({}, {{"com.a", "speakers"}, {"com.b", std::nullopt}})),
        ElementsAre("app output com.a speakers", "app output com.b none"));
    EXPECT_THAT(lines(appOutputEvents({{"com.a", "speakers"}}, {{"com.a", "speakers"}})), IsEmpty());
    EXPECT_THAT(lines(appOutputEvents({{"com.a", "speakers"}}, {{"com.a", "my phones"}})),
        ElementsAre("app output com.a \"my phones\""));
    EXPECT_THAT(lines(appOutputEvents({{"com.a", "speakers"}}, {})), IsEmpty());
}

TEST(Events, reportDevicesThatComeAndGo)
{
    const OutputDevice speakers = {2, "speakers", "Desk Speakers"};
    const OutputDevice headphones = {3, "headphones", "Headphones"};
    auto renamed = speakers;
    renamed.name = "Speakers";

    EXPECT_THAT(lines(outputEvents({}, Devices{speakers, headphones})),
        ElementsAre("device added headphones Headphones", "device added speakers \"Desk Speakers\""));
    EXPECT_THAT(lines(outputEvents(Devices{speakers, headphones}, Devices{headphones})),
        ElementsAre("device removed speakers \"Desk Speakers\""));
    EXPECT_THAT(lines(outputEvents(Devices{speakers}, Devices{renamed})),
        ElementsAre("device renamed speakers Speakers"));
    EXPECT_THAT(lines(outputEvents(Devices{speakers}, Devices{speakers})), IsEmpty());
}

TEST(Events, reportEverythingElse)
{
    EXPECT_EQ(eventLine(event::DefaultOutput{"speakers"}), "default speakers");
    EXPECT_EQ(eventLine(event::DefaultOutput{}), "default none");
    EXPECT_EQ(
        eventLine(event::Permission{AudioPermission::State::notDetermined}), "permission notDetermined");
    EXPECT_EQ(eventLine(event::Message{"Could not save settings: disk full"}),
        "message \"Could not save settings: disk full\"");
}

TEST(Events, reportCalls)
{
    EXPECT_EQ(eventLine(event::Call{"com.example.chat"}), "call com.example.chat");
    EXPECT_EQ(eventLine(event::Call{}), "call none");
}

TEST(Events, reportRecordings)
{
    EXPECT_THAT(lines(recordingEvents({"com.a"}, {"com.b"})),
        ElementsAre("recording stopped com.a", "recording started com.b"));
    EXPECT_THAT(lines(recordingEvents({"com.a"}, {"com.a"})), IsEmpty());
    EXPECT_EQ(eventLine(event::RecordingSaved{"/music/a b.wav"}), "recording saved \"/music/a b.wav\"");
}

TEST(Events, reportSuggestedCallApps)
{
    EXPECT_THAT(lines(callOfferEvents({"com.a"}, {"com.a", "com.b"})), ElementsAre("call-app offered com.b"));
    EXPECT_THAT(lines(callOfferEvents({"com.a"}, {})), IsEmpty());
}

TEST(Events, reportTheChangedSettingsOfAnApp)
{
    AppAudioSettings quiet;
    quiet.volume = 0.5F;
    quiet.muted = true;

    const auto changed = appSettingsEvents({{"com.b", quiet}}, {{"com.a", quiet}, {"com.b", quiet}});
    EXPECT_THAT(lines(changed), ElementsAre("app changed com.a volume 0.5 mute on"));
    EXPECT_EQ(
        eventJson(changed.front()), R"({"changed":{"muted":true,"volume":0.5},"event":"app","id":"com.a"})");
    EXPECT_THAT(
        lines(appSettingsEvents({{"com.a", quiet}}, {})), ElementsAre("app changed com.a volume 1 mute off"));
}

TEST(Events, areJsonToo)
{
    EXPECT_EQ(eventJson(event::AppAppeared{"com.a", "My \"Player\""}),
        R"({"event":"appeared","id":"com.a","name":"My \"Player\""})");
    EXPECT_EQ(eventJson(event::AppPlaying{"com.a", false}),
        R"({"changed":{"playing":false},"event":"app","id":"com.a"})");
    EXPECT_EQ(eventJson(event::AppOutput{"com.a", std::nullopt}),
        R"({"changed":{"output":null},"event":"app","id":"com.a"})");
    EXPECT_EQ(eventJson(event::Levels{{{"com.a", 0.5F}}}), R"({"event":"levels","levels":{"com.a":0.5}})");
    EXPECT_EQ(eventJson(event::Message{"\xff"}), "{\"event\":\"message\",\"text\":\"\uFFFD\"}");
}

TEST(Events, nameTheirApp)
{
    EXPECT_EQ(appOf(event::AppPlaying{"com.a", true}), "com.a");
    EXPECT_EQ(appOf(event::Call{"com.a"}), "com.a");
    EXPECT_EQ(appOf(event::DefaultOutput{"speakers"}), std::nullopt);
}

TEST(Events, stayOnOneLineWhateverTheName)
{
    for (const auto& line : lines(appEvents({}, Apps{app("com.a", true, "x\napp disappeared com.b")})))
        EXPECT_EQ(line.find('\n'), std::string::npos);
}

}  // namespace
}  // namespace fadeloom
