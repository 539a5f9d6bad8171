// SPDX-License-Identifier: MIT
// The platform contract for the simulation.
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/PlatformContract.h"

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

class SimulatedContractWorld final : public ContractWorld {
public:
    AudioSystem& audio() override { return platform_.audio(); }
    MainLoop& mainLoop() override { return platform_.mainLoop(); }

    ProcessID startPlayer(float amplitude) override
    {
        const ProcessID pid = platform_.launchApp("Player");
        later([this, pid, amplitude] { platform_.startPlaying(pid, SimulatedSignal::sine(441, amplitude)); });
        amplitudes_[pid] = amplitude;
        return pid;
    }
    void pausePlayer(ProcessID player) override
    {
        later([this, player] { platform_.stopPlaying(player); });
    }
    void resumePlayer(ProcessID player) override
    {
        later([this, player] {
            platform_.startPlaying(player, SimulatedSignal::sine(441, amplitudes_.at(player)));
        });
    }
    void endPlayer(ProcessID player) override
    {
        later([this, player] { platform_.quitApp(player); });
    }
    std::string bundleIDOf(ProcessID) override { return "com.example.player"; }

    void plug(const std::string& uid, const std::string& name, std::uint32_t channels) override
    {
        const StereoChannels pair{.left = 1, .right = channels == 1 ? 1U : 2U};
        later([=, this] {
            platform_.plug({.uid = uid, .name = name, .outputStreams = {channels}, .stereoPair = pair});
        });
    }
    void unplug(const std::string& uid) override
    {
        later([=, this] { platform_.unplug(uid); });
    }
    void setDefaultOutput(const std::string& uid) override
    {
        later([=, this] { platform_.setDefaultOutput(uid); });
    }

    bool waitUntil(const std::function<bool()>& condition) override
    {
        for (int i = 0; i < 200; ++i) {
            if (condition())
                return true;
            platform_.advance(10ms);
        }
        return condition();
    }
    void settle() override { platform_.advance(200ms); }

private:
    /// As on a real system, nothing happens immediately.
    void later(std::function<void()> event)
    {
        events_.push_back(platform_.mainLoop().after(20ms, std::move(event)));
    }

    SimulatedPlatform platform_{"/nowhere"};
    std::map<ProcessID, float> amplitudes_;
    std::vector<Subscription> events_;
};

std::unique_ptr<ContractWorld> makeSimulatedContractWorld()
{
    return std::make_unique<SimulatedContractWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Simulated, PlatformContract, ::testing::Values(&makeSimulatedContractWorld));
INSTANTIATE_TEST_SUITE_P(Simulated, TapContract, ::testing::Values(&makeSimulatedContractWorld));

}  // namespace fadeloom
