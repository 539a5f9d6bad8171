// SPDX-License-Identifier: MIT
// Probes this Mac for what no double can prove. Each test prints a line that begins with "answer"; the report of
// packaging/macos/firstHour collects them.
#include "platform/macos/AppKitWorkspace.h"
#include "platform/macos/ExtendedAudioFiles.h"
#include "platform/macos/HAL.h"
#include "platform/macos/OutputDevices.h"
#include "platform/macos/PropertyListener.h"
#include "tests/coreaudio/CoreAudioWorld.h"
#include "tests/platform/AudioReading.h"
#include "tests/platform/ContractTap.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <iterator>
#include <limits>
#include <sstream>
#include <thread>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Prints one line, even if the test fails later.
class Answer : public std::ostringstream {
public:
    explicit Answer(const char* question) { *this << "answer " << question << ": "; }
    ~Answer() override { std::cout << str() << std::endl; }
};

class CoreAudioQuestions : public ::testing::Test {
protected:
    AudioProcess playing()
    {
        const ProcessID pid = world.startPlayer(0.5F);
        EXPECT_TRUE(world.waitUntil([&] { return reading.isPlaying(pid); }));
        return reading.process(pid);
    }
    OutputDevice defaultDevice() { return reading.device(*CoreAudioWorld::originalOutput()); }

    CoreAudioWorld world;
    AudioSystem& audio = world.audio();
    AudioReading reading{audio};
};

TEST_F(CoreAudioQuestions, privacyAnswer)
{
    const auto word = TccPermission().preflight();

    Answer("privacy") << (word ? std::to_string(*word) : "no such function");
    EXPECT_TRUE(word);
}

TEST_F(CoreAudioQuestions, stereoPairsCountFromOne)
{
    Answer answer("stereo pairs");
    for (const auto& device : audio.outputDevices()) {
        const auto pair = OutputDevices::stereoChannels(device.id);
        answer << device.name << " " << pair.left << "+" << pair.right << "; ";
        EXPECT_GE(pair.left, 1U);
    }
}

TEST_F(CoreAudioQuestions, formatsOfTaps)
{
    const auto player = playing();
    Answer answer("tap formats");
    for (const auto& device : audio.outputDevices()) {
        ContractTap tap{audio, {player.id}, device};
        answer << device.name << " ";
        if (tap.isRunning())
            answer << tap.format->sampleRate << " Hz, buffers " << tap.format->tapBufferCount
                   << ", microphones off " << tap->disabledInputs() << "; ";
        else
            answer << tap.error->description() << "; ";
        EXPECT_TRUE(tap.isRunning()) << device.name;
    }
}

TEST_F(CoreAudioQuestions, rateOfTheCallbacks)
{
    const auto player = playing();
    ContractTap tap{audio, {player.id}, defaultDevice()};
    ASSERT_TRUE(tap.isRunning());
    ASSERT_TRUE(world.waitUntil([&] { return tap.proc->cycles > 10; }));

    const int before = tap.proc->cycles;
    const auto start = Clock::now();
    std::this_thread::sleep_for(3s);
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    const double rate = (tap.proc->cycles - before) * static_cast<double>(tap.proc->inputFrames) / seconds;

    Answer("rate of callbacks") << rate << " Hz, said are " << tap->sampleRate() << " Hz";
    EXPECT_NEAR(rate, tap->sampleRate(), tap->sampleRate() / 50);
}

TEST_F(CoreAudioQuestions, startAfterTheTapWithPermission)
{
    const auto player = playing();
    world.pausePlayer(player.pid);
    ASSERT_TRUE(world.waitUntil([&] { return !reading.isPlaying(player.pid); }));
    ContractTap tap{audio, {player.id}, defaultDevice()};
    ASSERT_TRUE(tap.isRunning());
    world.settle();

    const auto start = Clock::now();
    world.resumePlayer(player.pid);
    const bool isHeard = world.waitUntil([&] { return tap.proc->lastPeak > 0.1F; });
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);

    Answer("start after the tap") << (isHeard ? "heard after " : "not heard in ") << passed.count() << " ms";
    EXPECT_TRUE(isHeard && passed < 1s);
}

TEST_F(CoreAudioQuestions, microphoneBesideTheTapWithPermission)
{
    // A device with an input, combined with the output, like a headset.
    const auto ids = HAL::getArray(
        kAudioObjectSystemObject, kAudioHardwarePropertyDevices, kAudioObjectPropertyScopeGlobal);
    const auto hears = std::ranges::find_if(ids, [](auto id) {
        return !HAL::getArray(id, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeInput).empty();
    });
    Answer answer("microphone beside the tap");
    if (hears == ids.end()) {
        answer << "this Mac has no input device";
        GTEST_SKIP();
    }
    const auto microphone = HAL::string(*hears, kAudioDevicePropertyDeviceUID).value_or("");
    world.plugTogether(
        "contract.headset", "Contract headset", {microphone, *CoreAudioWorld::originalOutput()});
    ASSERT_TRUE(world.waitUntil([&] { return reading.hasDevice("contract.headset"); }));
    const auto player = playing();

    ContractTap tap{audio, {player.id}, reading.device("contract.headset")};

    ASSERT_TRUE(tap.isRunning()) << tap.error->description();
    const bool isHeard = world.waitUntil([&] { return tap.proc->lastPeak > 0.4F; });
    answer << tap->disabledInputs() << " streams off, the last stream has a peak of " << tap.proc->lastPeak;
    EXPECT_GE(tap->disabledInputs(), 1);
    EXPECT_TRUE(isHeard) << "the tap is not the last stream";
}

TEST_F(CoreAudioQuestions, listenerOfAnEndedProcess)
{
    const auto player = playing();
    world.endPlayer(player.pid);
    ASSERT_TRUE(world.waitUntil([&] { return !reading.hasProcess(player.pid); }));

    const auto listener =
        PropertyListener::add(player.id, HAL::address(kAudioProcessPropertyIsRunningOutput), [] { });

    Answer("listener of an ended process") << (listener ? "taken" : std::to_string(listener.error()));
}

TEST_F(CoreAudioQuestions, samplesBeyondFullScale)
{
    const TemporaryFolder folder;
    ExtendedAudioFiles files;
    const auto file = files.create(folder.path() / "beyond.wav", 48000);
    ASSERT_TRUE(file);
    const float samples[] = {
        2, -2, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()};
    EXPECT_TRUE((*file)->write(samples));
    EXPECT_EQ(files.dispose(**file), std::nullopt);

    std::ifstream stream(folder.path() / "beyond.wav", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    ASSERT_GE(bytes.size(), 12U);
    Answer answer("samples beyond full scale");
    for (std::size_t i = bytes.size() - 12; i < bytes.size(); i += 3) {
        const auto unsignedValue = static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i]))
            | static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i + 1])) << 8
            | static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i + 2])) << 16;
        answer << (static_cast<std::int32_t>(unsignedValue << 8) >> 8) << " ";
    }
}

TEST_F(CoreAudioQuestions, applications)
{
    const TemporaryFolder folder;
    const AppKitWorkspace workspace(folder.path());

    const auto start = Clock::now();
    const auto count = workspace.runningApplications().size();
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);

    Answer("applications") << count << " in " << passed.count() << " ms";
    EXPECT_LT(passed, 1s);
}

}  // namespace
}  // namespace fadeloom
