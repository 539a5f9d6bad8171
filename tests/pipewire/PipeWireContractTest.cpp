// SPDX-License-Identifier: MIT
// The platform contract for PipeWire, with real players and virtual devices.
#include "platform/pipewire/PipeWireAudioSystem.h"
#include "platform/qt/QtMainLoop.h"
#include "tests/pipewire/RealPlayers.h"
#include "tests/platform/PlatformContract.h"

#include <QCoreApplication>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

class PipeWireContractWorld final : public ContractWorld {
public:
    AudioSystem& audio() override { return audio_; }
    MainLoop& mainLoop() override { return mainLoop_; }

    ProcessID startPlayer(float amplitude) override { return players_.startSine(amplitude); }
    void pausePlayer(ProcessID player) override { players_.setPaused(player, true); }
    void resumePlayer(ProcessID player) override { players_.setPaused(player, false); }
    void endPlayer(ProcessID player) override { players_.end(player); }
    std::string bundleIDOf(ProcessID player) override { return bundleIdentifier(player); }

    void plug(const std::string& uid, const std::string& name, std::uint32_t channels) override
    {
        const auto* positions = channels == 1 ? "MONO" : channels == 2 ? "FL FR" : "FL FR FC LFE RL RR";
        players_.plug(uid, name, positions);
    }
    void unplug(const std::string& uid) override { players_.unplug(uid); }
    void setDefaultOutput(const std::string& uid) override { RealPlayers::setDefaultOutput(uid); }

    bool waitUntil(const std::function<bool()>& condition) override
    {
        const auto deadline = std::chrono::steady_clock::now() + 8s;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > deadline)
                return false;
            runFor(5ms);
        }
        return true;
    }
    void settle() override { runFor(500ms); }

private:
    static std::string bundleIdentifier(ProcessID pid) { return "player." + std::to_string(pid); }

    void runFor(std::chrono::milliseconds duration)
    {
        const auto end = mainLoop_.after(duration, [this] { mainLoop_.quit(); });
        mainLoop_.run();
    }

    RealPlayers players_;
    QtMainLoop mainLoop_;
    PipeWireAudioSystem audio_{mainLoop_,
        {.bundleIdentifier = [](ProcessID pid, const std::string&) { return bundleIdentifier(pid); },
            .portalProcess = {},
            .report = {}}};
};

std::unique_ptr<ContractWorld> makePipeWireContractWorld()
{
    return std::make_unique<PipeWireContractWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(PipeWire, PlatformContract, ::testing::Values(&makePipeWireContractWorld));
INSTANTIATE_TEST_SUITE_P(PipeWire, TapContract, ::testing::Values(&makePipeWireContractWorld));

}  // namespace fadeloom

int main(int argc, char** argv)
{
    const QCoreApplication application{argc, argv};
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
