// SPDX-License-Identifier: MIT
#include "app/SimulatedHome.h"

#include "app/Console.h"
#include "app/HeadlessRun.h"
#include "app/PrintedLog.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

class SimulatedHomeTest : public testing::Test {
protected:
    /// The output while real time passes.
    std::string printedIn(std::chrono::seconds time)
    {
        out.str("");
        realLoop.advance(time);
        return out.str();
    }

    TemporaryFolder folder;
    SimulatedClock realClock;
    SimulatedMainLoop realLoop{realClock};
    SimulatedText text;
    SimulatedHome home{folder.path(), realLoop, text};
    std::ostringstream out;
    Console console{[this](const std::string& written) { out << written; }};
    PrintedLog log{home.world().systemLog(), console, realLoop};
    HeadlessRun run{home.world().platform({.systemLog = &log}), console, {}};
};

TEST_F(SimulatedHomeTest, playsFromTheBeginning)
{
    EXPECT_THAT(out.str(), HasSubstr("app playing com.example.player\n"));
}

TEST_F(SimulatedHomeTest, isFrozenUntilItIsStarted)
{
    EXPECT_EQ(printedIn(10s), "");
}

TEST_F(SimulatedHomeTest, showsAppsAndDevicesThatComeAndGo)
{
    home.start();

    const auto firstMinute = printedIn(60s);
    EXPECT_THAT(firstMinute, HasSubstr("app appeared com.example.browser Browser\n"));
    EXPECT_THAT(firstMinute, HasSubstr("app appeared com.example.chat Chat\n"));
    EXPECT_THAT(firstMinute, HasSubstr("app silent com.example.chat\n"));
    EXPECT_THAT(firstMinute, HasSubstr("device removed headphones Headphones\n"));
    EXPECT_THAT(firstMinute, HasSubstr("device added headphones Headphones\n"));
    EXPECT_THAT(firstMinute, HasSubstr("app disappeared com.example.browser\n"));
}

TEST_F(SimulatedHomeTest, startsOverAfterAMinute)
{
    home.start();
    printedIn(60s);

    EXPECT_THAT(printedIn(5s), HasSubstr("app appeared com.example.browser Browser\n"));
}

TEST_F(SimulatedHomeTest, followsTheUsersSettings)
{
    home.start();

    run.takeLine("volume player 0.5");
    realLoop.advance(900ms);

    EXPECT_NEAR(home.world().heard("speakers").peak(1), 0.125F, 0.001F);
}

}  // namespace
}  // namespace fadeloom
