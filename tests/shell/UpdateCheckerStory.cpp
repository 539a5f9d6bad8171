// SPDX-License-Identifier: MIT
// Silent checks for a newer version.
#include "tests/shell/UpdateStage.h"

#include <vector>

namespace fadeloom {
namespace {

using std::chrono_literals::operator""h;
using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UpdateCheckerStory : public UpdateStage {
protected:
    void check()
    {
        checker->check([this](bool isReachable) { results.push_back(isReachable); });
    }

    std::vector<bool> results;
};

TEST_F(UpdateCheckerStory, aNewerBuildIsAvailable)
{
    check();
    EXPECT_EQ(availableVersion(), "none");
    EXPECT_THAT(results, IsEmpty());

    feed("1.4", "43");

    EXPECT_EQ(*checker->available(), (RemoteVersion{"1.4", 43}));
    EXPECT_THAT(results, ElementsAre(true));
}

TEST_F(UpdateCheckerStory, sendsTheExpectedRequest)
{
    check();

    const auto& request = world.http().requests().at(0);
    EXPECT_EQ(request.url, "https://updates.example/base/version.json");
    EXPECT_EQ(request.userAgent, "Fadeloom/42");
    EXPECT_EQ(request.timeout, 15s);
    EXPECT_EQ(request.largestBody, 65536U);
    EXPECT_EQ(checker->downloadURL(), "https://updates.example/base/download.php");
}

TEST_F(UpdateCheckerStory, theSameBuildIsNotAnUpdate)
{
    check();
    feed("1.4", "43");

    check();
    feed("9.9", "42");

    EXPECT_EQ(availableVersion(), "none");
    EXPECT_THAT(results, ElementsAre(true, true));
}

TEST_F(UpdateCheckerStory, anOlderBuildIsNotAnUpdate)
{
    check();
    feed("9.9", "41");

    EXPECT_EQ(availableVersion(), "none");
    EXPECT_THAT(results, ElementsAre(true));
}

TEST_F(UpdateCheckerStory, aRefusalIsAFailure)
{
    for (const int status : {404, 500, 204, 301, 0}) {
        results.clear();
        check();
        world.http().answer(status, R"({"version": "1.4", "build": 43})");

        EXPECT_THAT(results, ElementsAre(false)) << status;
        EXPECT_EQ(availableVersion(), "none") << status;
    }
}

TEST_F(UpdateCheckerStory, aFeedThatCannotBeReadIsAFailure)
{
    check();
    feed("1.4", R"("43")");

    EXPECT_THAT(results, ElementsAre(false));
    EXPECT_EQ(availableVersion(), "none");
}

TEST_F(UpdateCheckerStory, silenceIsAFailureAfterFifteenSeconds)
{
    check();

    world.advance(14'999ms);
    EXPECT_THAT(results, IsEmpty());
    world.advance(1ms);

    EXPECT_THAT(results, ElementsAre(false));
}

TEST_F(UpdateCheckerStory, aFailureLeavesWhatWasFound)
{
    check();
    feed("1.4", "43");

    check();
    world.http().cutOff();

    EXPECT_EQ(availableVersion(), "1.4");
    EXPECT_THAT(results, ElementsAre(true, false));
}

TEST_F(UpdateCheckerStory, aProgramWithoutABuildNumberIsOlderThanAnyRelease)
{
    for (const auto* const build :
        {"", "0", "none", "4 2", "42 ", " 42", "4.2", "0x2A", "99999999999999999999", "+-1"}) {
        install(build);
        check();

        EXPECT_EQ(checker->localBuild(), 0) << build;
        EXPECT_EQ(world.http().requests().back().userAgent, "Fadeloom/0") << build;
        feed("0.1", "1");
        EXPECT_EQ(availableVersion(), "0.1") << build;
    }
}

TEST_F(UpdateCheckerStory, aBuildNumberIsAnInteger)
{
    install("+7");
    EXPECT_EQ(checker->localBuild(), 7);
    install("-7");
    EXPECT_EQ(checker->localBuild(), -7);
}

TEST_F(UpdateCheckerStory, itChecksAtStartupAndOnceADay)
{
    EXPECT_EQ(world.http().requests().size(), 0U);

    checker->start();
    EXPECT_EQ(world.http().requests().size(), 1U);
    world.advance(24h - 1ms);
    EXPECT_EQ(world.http().requests().size(), 1U);
    world.advance(1ms);
    EXPECT_EQ(world.http().requests().size(), 2U);
    world.advance(72h);

    EXPECT_EQ(world.http().requests().size(), 5U);
    EXPECT_THAT(world.dialogs().alerts(), IsEmpty());
    EXPECT_EQ(world.application().activationCount(), 0);
}

TEST_F(UpdateCheckerStory, watchersReceiveEachChange)
{
    std::vector<std::string> heard;
    const auto watch = checker->available().whenAssigned([&] { heard.push_back(availableVersion()); });

    for (const auto* const build : {"43", "43", "44", "42"}) {
        check();
        feed(build, build);
    }

    EXPECT_THAT(heard, ElementsAre("43", "44", "none"));
}

TEST_F(UpdateCheckerStory, ofOverlappingChecksTheLastToFinishWins)
{
    check();
    check();
    world.http().answer(200, R"({"version": "newer", "build": 44})", 1);
    EXPECT_EQ(availableVersion(), "newer");

    feed("older", "43");

    EXPECT_EQ(availableVersion(), "older");
    EXPECT_THAT(results, ElementsAre(true, true));
}

TEST_F(UpdateCheckerStory, aReplyAfterItsEndIsIgnored)
{
    checker->start();
    checker->checkInteractively();

    checker.reset();
    feed("1.4", "43");
    feed("1.4", "43");
    world.advance(48h);

    EXPECT_THAT(world.dialogs().alerts(), IsEmpty());
    EXPECT_EQ(world.http().requests().size(), 2U);
}

}  // namespace
}  // namespace fadeloom
