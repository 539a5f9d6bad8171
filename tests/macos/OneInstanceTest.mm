// SPDX-License-Identifier: MIT
// The program alongside another instance.
#include "platform/macos/OneInstance.h"
#include "tests/macos/DesktopStage.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <optional>
#include <thread>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using Start = OneInstance::Start;

class MacOSInstance : public DesktopStage {
protected:
    ~MacOSInstance() override { ::unsetenv(OneInstance::successorVariable); }

    TemporaryFolder folder;
    std::filesystem::path place = folder.path() / "Fadeloom";
};

TEST_F(MacOSInstance, isUniquePerUser)
{
    std::optional<OneInstance> first(std::in_place, place);
    ASSERT_EQ(first->claim(true), Start::first);

    EXPECT_EQ(OneInstance(place).claim(true), Start::besidePanel);
    EXPECT_EQ(OneInstance(place).claim(false), Start::besidePanel);
    first.reset();

    EXPECT_EQ(OneInstance(place).claim(true), Start::first);
}

TEST_F(MacOSInstance, detectsOneWithoutAPanel)
{
    OneInstance first(place);
    ASSERT_EQ(first.claim(false), Start::first);

    EXPECT_EQ(OneInstance(place).claim(true), Start::besideHeadless);
}

TEST_F(MacOSInstance, opensTheOtherOnesPanel)
{
    int opened = 0;
    OneInstance first(place);
    first.serve([&] { ++opened; });

    OneInstance(place).askToOpen();
    EXPECT_EQ(opened, 1);
    first.serve(nullptr);
    OneInstance(place).askToOpen();

    EXPECT_EQ(opened, 1);
    EXPECT_THAT(
        done(), ElementsAre("post com.fadeloom.app.open at once", "post com.fadeloom.app.open at once"));
}

TEST_F(MacOSInstance, waitsForOneThatIsExiting)
{
    std::optional<OneInstance> first(std::in_place, place);
    ASSERT_EQ(first->claim(true), Start::first);
    first->beginEnding();
    std::jthread later([&] {
        std::this_thread::sleep_for(200ms);
        first.reset();
    });

    EXPECT_EQ(OneInstance(place).claim(true), Start::first);
}

TEST_F(MacOSInstance, succeedsTheOneThatHasStartedIt)
{
    std::optional<OneInstance> first(std::in_place, place);
    ASSERT_EQ(first->claim(true), Start::first);
    std::jthread later([&] {
        std::this_thread::sleep_for(200ms);
        first.reset();
    });
    ::setenv(OneInstance::successorVariable, "1", 1);

    EXPECT_EQ(OneInstance(place).claim(true), Start::first);
}

TEST_F(MacOSInstance, startsIfLockingIsImpossible)
{
    std::ofstream(place) << "no folder";

    EXPECT_EQ(OneInstance(place).claim(true), Start::first);
    EXPECT_EQ(OneInstance({}).claim(true), Start::first);
}

}  // namespace
}  // namespace fadeloom
