// SPDX-License-Identifier: MIT
// Programs that receive events, and replies as JSON.
#include "commands/Watchers.h"
#include "tests/commands/CommandStory.h"

#include <memory>
#include <vector>

namespace fadeloom {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class WatchStory : public CommandStory {
protected:
    struct Told {
        std::vector<std::string> lines;
        std::shared_ptr<void> watch;
    };

    /// The events from now on.
    std::unique_ptr<Told> watch(const std::string& line, bool isSandboxed = false)
    {
        auto told = std::make_unique<Told>();
        told->watch = watchers.add(
            line, isSandboxed, [lines = &told->lines](const auto& text) { lines->push_back(text); });
        return told;
    }
    std::vector<std::string> next(Told& told)
    {
        world.advance(100ms);
        return std::exchange(told.lines, {});
    }
    std::string json(std::string_view command) { return commands.jsonOf(commands.interpret(command)); }

    Watchers watchers{controller, world.platform().mainLoop, world.platform().text};
};

TEST_F(WatchStory, beginsWithTheStateAndContinuesWithChanges)
{
    const auto told = watch("text");
    EXPECT_THAT(next(*told),
        ElementsAre("ok ok watch", "permission granted", "device added headphones Headphones",
            "device added speakers \"Desk Speakers\"", "default speakers",
            "app appeared com.example.player Player", "app playing com.example.player",
            "app output com.example.player speakers"));

    answer("volume player 0.5");
    answer("volume player +5%");

    EXPECT_THAT(next(*told), ElementsAre("app changed com.example.player volume 0.55"))
        << "one event for a slider that is dragged";
}

TEST_F(WatchStory, ofOneAppLeavesTheOthersOut)
{
    launchPlaying("Radio");
    const auto told = watch("text apps Radio");
    next(*told);

    answer("volume player 0.5");
    EXPECT_THAT(next(*told), IsEmpty());
    answer("volume radio 0.5");
    EXPECT_THAT(next(*told), ElementsAre("app changed com.example.radio volume 0.5"));
}

TEST_F(WatchStory, inJsonBeginsWithTheState)
{
    const auto told = watch("json");
    const auto lines = next(*told);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[1].substr(0, 10), R"({"apps":[{)");
    EXPECT_THAT(lines[1], HasSubstr(R"("event":"state")"));

    answer("mute player on");
    EXPECT_THAT(
        next(*told), ElementsAre(R"({"changed":{"muted":true},"event":"app","id":"com.example.player"})"));
    watchers.end();
    EXPECT_THAT(told->lines, ElementsAre(R"({"event":"end"})"));
}

TEST_F(WatchStory, forABarIsOneObjectForEachChange)
{
    const auto told = watch("waybar");
    EXPECT_THAT(next(*told),
        ElementsAre("ok ok watch",
            R"({"class":["playing"],"percentage":100,"text":"100%","tooltip":"Player → Desk Speakers"})"));
    answer("mute player on");
    EXPECT_THAT(next(*told),
        ElementsAre(
            R"({"class":["playing","muted"],"percentage":100,"text":"muted","tooltip":"Player → Desk Speakers"})"));
    answer("band player 1 3");
    EXPECT_THAT(next(*told), IsEmpty()) << "nothing that a bar shows";

    const auto later = watch("waybar radio");
    EXPECT_THAT(next(*later), Contains(R"({"class":["none"],"percentage":0,"text":"","tooltip":""})"));
    launchPlaying("Radio");
    EXPECT_THAT(next(*later), Contains(HasSubstr(R"("tooltip":"Radio → Desk Speakers")")));
}

TEST_F(WatchStory, measuresLevelsWhileWatched)
{
    EXPECT_FALSE(controller.levels().isRunning());
    auto told = watch("text levels");
    auto other = watch("json levels player");
    EXPECT_THAT(next(*told), Contains(HasSubstr("levels com.example.player 0.")));
    EXPECT_THAT(next(*other), Contains(HasSubstr(R"({"event":"levels","levels":{"com.example.player":0.)")));

    told->watch.reset();
    EXPECT_TRUE(controller.levels().isRunning());
    other->watch.reset();
    EXPECT_FALSE(controller.levels().isRunning());
}

TEST_F(WatchStory, endsWithItsHandle)
{
    const auto told = watch("text");
    const auto other = watch("text");
    EXPECT_EQ(watchers.count(), 2);
    next(*told);

    told->watch.reset();
    answer("mute player on");

    EXPECT_EQ(watchers.count(), 1);
    EXPECT_THAT(next(*told), IsEmpty());
    watchers.end();
    other->watch.reset();
    EXPECT_EQ(watchers.count(), 0);
}

TEST_F(WatchStory, aMistakeIsAnswered)
{
    EXPECT_THAT(watch("")->lines, ElementsAre("usage error say in which form"));
    EXPECT_THAT(watch("xml")->lines, ElementsAre("usage error say text, json or waybar, not xml"));
    EXPECT_THAT(watch("text a b")->lines, ElementsAre("usage error usage: watch [apps|levels] [APP]"));
    EXPECT_THAT(watch("waybar levels")->lines, ElementsAre("usage error usage: watch [apps|levels] [APP]"));
    EXPECT_THAT(watch("text \"")->lines, ElementsAre("usage error a double quote is not closed"));
    EXPECT_EQ(watchers.count(), 0);
}

TEST_F(WatchStory, whereRecordingsAreIsNotForASandbox)
{
    const auto trusted = watch("text");
    const auto sandboxed = watch("text", true);
    answer("record player start");
    world.advance(1s);
    answer("record player stop");
    world.advance(2s);

    EXPECT_THAT(trusted->lines, Contains(HasSubstr("recording saved")));
    EXPECT_THAT(sandboxed->lines, Contains("recording stopped com.example.player"));
    EXPECT_THAT(sandboxed->lines, testing::Not(Contains(HasSubstr("recording saved"))));
}

TEST_F(WatchStory, answersAreJsonToo)
{
    EXPECT_EQ(json("volume player 0.5"),
        R"({"apps":[{"ducked":false,"eq":false,"gains":[0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0],)"
        R"("id":"com.example.player","microphone":false,"muted":false,"name":"Player","output":"speakers",)"
        R"("outputMissing":false,"outputUID":null,"playing":true,"preamp":0.0,"preset":"Flat",)"
        R"("recording":false,"volume":0.5}]})");
    EXPECT_EQ(json("limit 2"), R"({"answer":"limit 2"})");
    EXPECT_EQ(json("louder"), R"({"error":"unknown command louder, help lists them"})");
    EXPECT_EQ(json("list outputs"),
        R"({"outputs":[{"default":true,"name":"Desk Speakers","uid":"speakers"},)"
        R"({"default":false,"name":"Headphones","uid":"headphones"}]})");
    EXPECT_THAT(json("list presets"), HasSubstr(R"("name":"Rock","own":false})"));
    EXPECT_THAT(json("list"), HasSubstr(R"("callApp":null,"default":"speakers","limit":2.0,"outputs":[)"));
}

TEST_F(WatchStory, settingsAreExportedAndRestored)
{
    answer("volume player 0.5");
    answer("save-preset player \"Zoë’s\"");
    const auto exported = commands.interpret("export").sentence().substr(std::string("export ").size());
    EXPECT_THAT(exported, HasSubstr("Zo\\u00eb\\u2019s"));
    answer("volume player 1");
    answer("delete-preset Zoë’s");

    EXPECT_EQ(commands.run(std::vector<std::string>{"restore", exported}).text, "ok restore");

    EXPECT_EQ(answer("volume player"), "ok volume com.example.player 0.5");
    EXPECT_EQ(answer("preset player Zoë’s"), "ok preset com.example.player Zoë’s");
    EXPECT_EQ(commands.interpret("export", Caller::sandboxed).kind, ReplyKind::denied);
}

}  // namespace
}  // namespace fadeloom
