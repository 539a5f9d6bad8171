// SPDX-License-Identifier: MIT
// The platform contract for the audio system of macOS, on doubles of the platform.
#include "platform/macos/CoreAudioSystem.h"
#include "tests/macos/QueueMainLoop.h"
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/Dispatch.h"
#include "tests/platform/PlatformContract.h"

namespace fadeloom {
namespace {

using doubles::AudioWorld;

class MacOSContractWorld final : public ContractWorld {
public:
    MacOSContractWorld() { world_.reset(); }
    ~MacOSContractWorld() override
    {
        EXPECT_TRUE(world_.listeners.empty()) << "a listener was not taken back";
        doubles::clearQueues();
        world_.reset();
    }

    AudioSystem& audio() override { return audio_; }
    MainLoop& mainLoop() override { return mainLoop_; }

    ProcessID startPlayer(float amplitude) override
    {
        const ProcessID pid = ++lastPid_;
        later([=, this] {
            world_.addProcess({.pid = pid,
                .bundleID = "com.example.player",
                .isRunningOutput = true,
                .amplitude = amplitude});
        });
        return pid;
    }
    void pausePlayer(ProcessID player) override { play(player, false); }
    void resumePlayer(ProcessID player) override { play(player, true); }
    void endPlayer(ProcessID player) override
    {
        later([=, this] { world_.endProcess(player); });
    }
    std::string bundleIDOf(ProcessID) override { return "com.example.player"; }

    void plug(const std::string& uid, const std::string& name, std::uint32_t channels) override
    {
        later([=, this] {
            world_.plug({.uid = uid,
                .name = name,
                .outputs = {channels},
                .stereoPair = {1, channels == 1 ? 1U : 2U}});
        });
    }
    void unplug(const std::string& uid) override
    {
        later([=, this] { world_.unplug(uid); });
    }
    void setDefaultOutput(const std::string& uid) override
    {
        later([=, this] { world_.setDefaultOutput(uid); });
    }

    bool waitUntil(const std::function<bool()>& condition) override
    {
        for (int i = 0; i < 50 && !condition(); ++i)
            step();
        return condition();
    }
    void settle() override
    {
        for (int i = 0; i < 5; ++i)
            step();
    }

private:
    void later(std::function<void()> event) { world_.pending.push_back(std::move(event)); }
    void play(ProcessID player, bool isPlaying)
    {
        later([=, this] {
            world_.change(player, [=](doubles::Process& process) { process.isRunningOutput = isPlaying; });
        });
    }
    void step()
    {
        world_.settleProperties();
        doubles::runQueues();
        world_.runCycle();
    }

    AudioWorld& world_ = AudioWorld::current();
    QueueMainLoop mainLoop_;
    CoreAudioSystem audio_;
    ProcessID lastPid_ = 500;
};

std::unique_ptr<ContractWorld> makeMacOSContractWorld()
{
    return std::make_unique<MacOSContractWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(MacOS, PlatformContract, ::testing::Values(&makeMacOSContractWorld));
INSTANTIATE_TEST_SUITE_P(MacOS, TapContract, ::testing::Values(&makeMacOSContractWorld));

}  // namespace fadeloom
