// SPDX-License-Identifier: MIT
// The callback in a real graph, on PipeWire's own data thread: it never allocates, blocks, or makes system calls.
#include "engine/AppTap.h"
#include "engine/EqualizerDesign.h"
#include "engine/Recording.h"
#include "platform/pipewire/PipeWireAudioSystem.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/sndfile/SndfileAudioFiles.h"
#include "tests/pipewire/RealPlayers.h"
#include "tests/platform/AudioReading.h"
#include "tests/support/RealTimeGuard.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <mutex>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

class RealTimeCallback : public ::testing::Test {
protected:
    void runFor(std::chrono::milliseconds duration)
    {
        const auto end = loop.after(duration, [this] { loop.quit(); });
        loop.run();
    }

    bool waitUntil(const std::function<bool()>& condition)
    {
        for (int i = 0; i < 1000 && !condition(); ++i)
            runFor(5ms);
        return condition();
    }

    RealPlayers players;
    QtMainLoop loop;
    PipeWireAudioSystem audio{loop,
        {.bundleIdentifier = [](ProcessID, const std::string&) { return "player"; },
            .portalProcess = {},
            .report = {}}};
    AudioReading reading{audio};
};

TEST_F(RealTimeCallback, staysFreeOfForbiddenCallsWhileItsSettingsChangeAndItIsRecorded)
{
    ASSERT_TRUE(isGuarding());
    const TemporaryFolder folder;
    const auto location = folder.path() / "recording.wav";
    SndfileAudioFiles files;
    players.plug("device", "A device", "FL FR");
    RealPlayers::setDefaultOutput("device");
    ASSERT_TRUE(waitUntil([&] { return reading.hasDevice("device"); }));
    const auto pid = players.startSine(0.5F);
    ASSERT_TRUE(waitUntil([&] { return reading.isPlaying(pid); }));
    auto parameters = std::make_shared<TapParameters>();
    auto tap = AppTap::create(audio, {reading.process(pid).id}, reading.device("device"),
        TapScope::everyStream, parameters, "Player");
    ASSERT_TRUE(tap.has_value());
    ASSERT_TRUE(waitUntil([&] { return parameters->audioSeen.load(); }));
    CycleClocks clocks;
    const auto recording = Recording::create(
        files, clocks, location, tap.value()->sampleRate(), {.date = {}, .host = audio.hostTime()});
    ASSERT_TRUE(recording.has_value());
    const int before = realTimeViolations();

    for (int i = 0; i < 100; ++i) {
        parameters->recorder.set(i % 10 != 9 ? (*recording)->lanes() : nullptr);
        const std::vector<float> gains(10, static_cast<float>(i % 12));
        parameters->setEQ(eqCoefficients(gains, 48000));
        {
            const std::scoped_lock lock{parameters->lock};
            parameters->values.eqEnabled = i % 3 != 0;
            parameters->values.muted = i % 7 == 0;
            parameters->values.volume = static_cast<float>(i % 5) * 0.5F;
        }
        runFor(20ms);
    }

    EXPECT_GT(parameters->takePeak(), 0);
    EXPECT_EQ(realTimeViolations() - before, 0) << lastRealTimeViolation();
    tap.value().reset();
    (*recording)->stop(audio.hostTime());
    (*recording)->finish();
    EXPECT_EQ((*recording)->failure(), std::nullopt);
    EXPECT_EQ((*recording)->lostTime(), 0ms);
    EXPECT_GT(std::filesystem::file_size(location), 6 * 48000);
}

}  // namespace
}  // namespace fadeloom

int main(int argc, char** argv)
{
    const QCoreApplication application{argc, argv};
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
