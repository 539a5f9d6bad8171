// SPDX-License-Identifier: MIT
#include "control/LevelStore.h"

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::FloatNear;
using testing::IsEmpty;
using testing::Pair;

TEST(MeterPosition, isLinearInDecibelsOver60OfThem)
{
    EXPECT_FLOAT_EQ(meterPosition(1), 1);
    EXPECT_NEAR(meterPosition(0.1F), 0.6667, 0.0001);
    EXPECT_NEAR(meterPosition(0.5F), 0.8997, 0.0001);
    EXPECT_NEAR(meterPosition(0.01F), 0.3333, 0.0001);
    EXPECT_NEAR(meterPosition(0.001F), 0, 1e-6);
}

TEST(MeterPosition, staysOnTheScale)
{
    EXPECT_EQ(meterPosition(0), 0);
    EXPECT_EQ(meterPosition(1e-7F), 0);
    EXPECT_EQ(meterPosition(2), 1);
    EXPECT_EQ(meterPosition(std::numeric_limits<float>::infinity()), 1);
}

TEST(MeterPosition, reportsItsLevel)
{
    EXPECT_FLOAT_EQ(meterDecibels(1), 0);
    EXPECT_FLOAT_EQ(meterDecibels(0), -60);
    EXPECT_NEAR(meterDecibels(meterPosition(0.1F)), -20, 1e-4);
}

class LevelStoreTest : public testing::Test {
protected:
    // An app's peak since the last poll, taken once.
    LevelStore::Levels take()
    {
        lookCount += 1;
        auto taken = peaks;
        for (auto& [id, peak] : peaks)
            peak = 0;
        return taken;
    }
    void watch() { store.setWanted(true); }
    float level(const std::string& id) { return store.levels()->at(id); }

    SimulatedClock clock;
    SimulatedMainLoop loop{clock};
    LevelStore::Levels peaks;
    int lookCount = 0;
    LevelStore store{loop, [this] { return take(); }};
};

TEST_F(LevelStoreTest, isIdleWhileUnwatched)
{
    peaks = {{"player", 1.0F}};

    loop.advance(10s);

    EXPECT_EQ(lookCount, 0);
    EXPECT_FALSE(store.isRunning());
    EXPECT_THAT(*store.levels(), IsEmpty());
}

TEST_F(LevelStoreTest, pollsTwentyTimesASecondWhileWatched)
{
    watch();
    watch();
    lookCount = 0;

    loop.advance(1s);

    EXPECT_EQ(lookCount, 20);
}

TEST_F(LevelStoreTest, ignoresLevelsFromWhileItWasUnwatched)
{
    peaks = {{"player", 1.0F}};

    watch();
    loop.advance(LevelStore::interval);
    EXPECT_EQ(level("player"), 0);

    peaks = {{"player", 1.0F}};
    store.setEnabled(false);
    store.setEnabled(true);
    loop.advance(LevelStore::interval);
    EXPECT_EQ(level("player"), 0);
}

TEST_F(LevelStoreTest, publishesAllAppsTogether)
{
    int assignments = 0;
    const auto subscription = store.levels().whenAssigned([&] { assignments += 1; });
    watch();
    peaks = {{"chat", 0.1F}, {"player", 1.0F}};

    loop.advance(LevelStore::interval);

    EXPECT_EQ(assignments, 1);
    EXPECT_THAT(*store.levels(),
        ElementsAre(Pair("chat", FloatNear(2.0F / 3, 1e-4F)), Pair("player", FloatNear(1, 1e-6F))));
}

TEST_F(LevelStoreTest, risesImmediatelyAndDecaysBy15PercentPerPoll)
{
    watch();
    peaks = {{"player", 0.1F}};
    loop.advance(LevelStore::interval);
    EXPECT_NEAR(level("player"), 0.6667, 1e-4);

    loop.advance(LevelStore::interval);
    EXPECT_NEAR(level("player"), 0.6667 * 0.85, 1e-4);
    loop.advance(LevelStore::interval);
    EXPECT_NEAR(level("player"), 0.6667 * 0.85 * 0.85, 1e-4);

    peaks = {{"player", 1.0F}};
    loop.advance(LevelStore::interval);
    EXPECT_FLOAT_EQ(level("player"), 1);
}

TEST_F(LevelStoreTest, hasNearlyDecayedASecondAfterTheSound)
{
    watch();
    peaks = {{"player", 1.0F}};
    loop.advance(LevelStore::interval);

    loop.advance(1s);

    EXPECT_NEAR(level("player"), std::pow(0.85, 20), 1e-4);
}

TEST_F(LevelStoreTest, showsASteadyLevel)
{
    watch();
    for (int look = 0; look < 50; ++look) {
        peaks = {{"player", 0.1F}};
        loop.advance(LevelStore::interval);
        EXPECT_NEAR(level("player"), 0.6667, 1e-4);
    }
}

TEST_F(LevelStoreTest, forgetsAnAppThatIsGone)
{
    watch();
    peaks = {{"player", 1.0F}};
    loop.advance(LevelStore::interval);

    peaks.clear();
    loop.advance(LevelStore::interval);

    EXPECT_THAT(*store.levels(), IsEmpty());
}

TEST_F(LevelStoreTest, clearsAllMetersOnceUnwatched)
{
    watch();
    peaks = {{"player", 1.0F}};
    loop.advance(LevelStore::interval);

    store.setWanted(false);
    EXPECT_THAT(*store.levels(), IsEmpty());
    lookCount = 0;
    loop.advance(1s);

    EXPECT_EQ(lookCount, 0);
}

TEST_F(LevelStoreTest, isIdleWhileMetersAreOff)
{
    store.setEnabled(false);
    watch();
    loop.advance(1s);
    EXPECT_EQ(lookCount, 0);

    store.setEnabled(true);
    lookCount = 0;
    loop.advance(1s);
    EXPECT_EQ(lookCount, 20);
}

TEST_F(LevelStoreTest, switchingMetersOffClearsTheBars)
{
    watch();
    peaks = {{"player", 1.0F}};
    loop.advance(LevelStore::interval);

    store.setEnabled(false);

    EXPECT_THAT(*store.levels(), IsEmpty());
    EXPECT_FALSE(store.isRunning());
}

TEST_F(LevelStoreTest, switchingMetersOnStartsNothingWhileUnwatched)
{
    store.setEnabled(false);

    store.setEnabled(true);
    loop.advance(1s);

    EXPECT_EQ(lookCount, 0);
}

TEST_F(LevelStoreTest, itsEndEndsItsTimer)
{
    {
        LevelStore brief{loop, [this] { return take(); }};
        brief.setWanted(true);
    }
    lookCount = 0;
    loop.advance(1s);

    EXPECT_EQ(lookCount, 0);
}

}  // namespace
}  // namespace fadeloom
