// SPDX-License-Identifier: MIT
// The privacy database's functions, found in a library at run time, or not found.
#include "control/AudioPermission.h"
#include "platform/macos/TccPermission.h"
#include "tests/macos/TccDouble.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace fadeloom {
namespace {

using State = AudioPermission::State;

/// Holds posted tasks until the test runs them.
class KeptLoop final : public MainLoop {
public:
    void post(Task task) override { posted.push_back(std::move(task)); }
    Subscription after(std::chrono::milliseconds, Task) override { return {}; }
    Subscription every(std::chrono::milliseconds, Task) override { return {}; }
    bool isCurrent() const override { return true; }

    std::vector<Task> posted;
};

class MacOSPermission : public ::testing::Test {
protected:
    DynamicLibrary library{TCC_DOUBLE};
    TccDouble& tcc = *library.function<TccDouble*()>("tccDouble")();
    TccPermission permission{TCC_DOUBLE};
    KeptLoop loop;
    AudioPermission state{permission, loop};
};

TEST_F(MacOSPermission, mapsTheStatus)
{
    const std::vector<std::pair<int, State>> meanings = {
        {0, State::granted}, {1, State::denied}, {2, State::notDetermined}, {7, State::notDetermined}};
    for (const auto& [answer, meaning] : meanings) {
        tcc.preflightAnswer = answer;
        EXPECT_EQ(state.current(), meaning) << answer;
    }
    EXPECT_EQ(tcc.service, "kTCCServiceAudioCapture");
    EXPECT_FALSE(tcc.hadOptions);
}

TEST_F(MacOSPermission, isAnsweredOnTheMainLoopFromAnyThread)
{
    for (const bool isGranted : {true, false}) {
        std::vector<bool> answers;
        ASSERT_TRUE(state.canRequest());

        state.requestAccess([&](bool answer) { answers.push_back(answer); });
        std::thread([&] { tcc.answer(isGranted); }).join();
        EXPECT_TRUE(answers.empty());
        for (const auto& task : std::exchange(loop.posted, {}))
            task();

        EXPECT_THAT(answers, ::testing::ElementsAre(isGranted));
        EXPECT_EQ(tcc.service, "kTCCServiceAudioCapture");
    }
}

TEST_F(MacOSPermission, releasesItsRequestOnceAnswered)
{
    const auto held = std::make_shared<int>(1);

    permission.request([held](bool) { });
    EXPECT_EQ(held.use_count(), 2);
    tcc.answer(true);

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(MacOSPermission, isGrantedAndCannotBeAskedForWithoutTheFunctions)
{
    for (const char* path : {TccPermission::framework, TCC_EMPTY_DOUBLE}) {
        TccPermission without(path);
        const AudioPermission stateWithout(without, loop);

        EXPECT_EQ(stateWithout.current(), State::granted);
        EXPECT_FALSE(stateWithout.canRequest());
    }
}

}  // namespace
}  // namespace fadeloom
