// SPDX-License-Identifier: MIT
#include "commands/EventLines.h"

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

using Apps = std::vector<AppEntry>;
using Devices = std::vector<OutputDevice>;

TEST(EventLines, tellOfAppsThatComePlayAndGo)
{
    EXPECT_THAT(appLines({}, Apps{app("com.a", true)}),
        ElementsAre("app appeared com.a \"My Player\"", "app playing com.a"));
    EXPECT_THAT(appLines({}, Apps{app("com.a", false)}), ElementsAre("app appeared com.a \"My Player\""));
    EXPECT_THAT(
        appLines(Apps{app("com.a", true)}, Apps{app("com.a", false)}), ElementsAre("app silent com.a"));
    EXPECT_THAT(
        appLines(Apps{app("com.a", false)}, Apps{app("com.a", true)}), ElementsAre("app playing com.a"));
    EXPECT_THAT(appLines(Apps{app("com.a", true)}, {}), ElementsAre("app disappeared com.a"));
}

TEST(EventLines, areSilentAboutAnotherOrder)
{
    const auto a = app("com.a", true);
    const auto b = app("com.b", true);

    EXPECT_THAT(appLines(Apps{a, b}, Apps{b, a}), IsEmpty());
}

TEST(EventLines, tellOfOutputsThatChange)
{
    EXPECT_THAT(outputLines({}, {{"com.a", "speakers"}, {"com.b", std::nullopt}}),
        ElementsAre("app output com.a speakers", "app output com.b none"));
    EXPECT_THAT(outputLines({{"com.a", "speakers"}}, {{"com.a", "speakers"}}), IsEmpty());
    EXPECT_THAT(outputLines({{"com.a", "speakers"}}, {{"com.a", "my phones"}}),
        ElementsAre("app output com.a \"my phones\""));
    EXPECT_THAT(outputLines({{"com.a", "speakers"}}, {}), IsEmpty());
}

TEST(EventLines, tellOfDevicesThatComeAndGo)
{
    const OutputDevice speakers = {2, "speakers", "Desk Speakers"};
    const OutputDevice headphones = {3, "headphones", "Headphones"};
    auto renamed = speakers;
    renamed.name = "Speakers";

    EXPECT_THAT(deviceLines({}, Devices{speakers, headphones}),
        ElementsAre("device added headphones Headphones", "device added speakers \"Desk Speakers\""));
    EXPECT_THAT(deviceLines(Devices{speakers, headphones}, Devices{headphones}),
        ElementsAre("device removed speakers \"Desk Speakers\""));
    EXPECT_THAT(
        deviceLines(Devices{speakers}, Devices{renamed}), ElementsAre("device renamed speakers Speakers"));
    EXPECT_THAT(deviceLines(Devices{speakers}, Devices{speakers}), IsEmpty());
}

TEST(EventLines, tellOfTheRest)
{
    EXPECT_EQ(defaultLine("speakers"), "default speakers");
    EXPECT_EQ(defaultLine(std::nullopt), "default none");
    EXPECT_EQ(permissionLine(AudioPermission::State::notDetermined), "permission notDetermined");
    EXPECT_EQ(
        messageLine("Could not save settings: disk full"), "message \"Could not save settings: disk full\"");
}

TEST(EventLines, tellOfCalls)
{
    EXPECT_EQ(callLine("com.example.chat"), "call com.example.chat");
    EXPECT_EQ(callLine(std::nullopt), "call none");
}

TEST(EventLines, tellOfRecordings)
{
    EXPECT_THAT(recordingLines({"com.a"}, {"com.b"}),
        ElementsAre("recording stopped com.a", "recording started com.b"));
    EXPECT_THAT(recordingLines({"com.a"}, {"com.a"}), IsEmpty());
    EXPECT_EQ(savedRecordingLine("/music/a b.wav"), "recording saved \"/music/a b.wav\"");
}

TEST(EventLines, tellOfAppsThatAreOfferedAsCallApps)
{
    EXPECT_THAT(callOfferLines({"com.a"}, {"com.a", "com.b"}), ElementsAre("call-app offered com.b"));
    EXPECT_THAT(callOfferLines({"com.a"}, {}), IsEmpty());
}

TEST(EventLines, stayOneLineWhateverANameHolds)
{
    for (const auto& line : appLines({}, Apps{app("com.a", true, "x\napp disappeared com.b")}))
        EXPECT_EQ(line.find('\n'), std::string::npos);
}

}  // namespace
}  // namespace fadeloom
