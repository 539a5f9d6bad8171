// SPDX-License-Identifier: MIT
// The CoreAudio of this Mac as a world of the contract: players are processes of this program, devices that are plugged
// in are aggregate devices around the default output.
#pragma once

#include "platform/macos/CoreAudioSystem.h"
#include "platform/macos/TccPermission.h"
#include "platform/qt/QtMainLoop.h"
#include "tests/platform/ContractWorld.h"

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace fadeloom {

/// Public devices: a private one could be no default output, and no other process could play on it. They go, and the
/// default output is as before, when the world ends.
class CoreAudioWorld final : public ContractWorld {
public:
    CoreAudioWorld();
    ~CoreAudioWorld() override;

    /// Absent without an output device to build on.
    [[nodiscard]] static std::optional<std::string> originalOutput();
    /// Whether what others play may be captured: without it taps deliver zeros.
    [[nodiscard]] static bool mayCapture();
    /// How this very program is started once more, as a player.
    static std::string& program();

    AudioSystem& audio() override { return audio_; }
    MainLoop& mainLoop() override { return mainLoop_; }
    ProcessID startPlayer(float amplitude) override;
    void pausePlayer(ProcessID player) override;
    void resumePlayer(ProcessID player) override;
    void endPlayer(ProcessID player) override;
    /// A bare executable has none.
    std::string bundleIDOf(ProcessID) override { return {}; }
    void plug(const std::string& uid, const std::string& name, std::uint32_t channels) override;
    void unplug(const std::string& uid) override;
    void setDefaultOutput(const std::string& uid) override;
    bool waitUntil(const std::function<bool()>& condition) override;
    void settle() override;

    /// An aggregate device of these devices, in their order.
    void plugTogether(const std::string& uid, const std::string& name, const std::set<std::string>& parts);

private:
    void runFor(std::chrono::milliseconds duration);

    QtMainLoop mainLoop_;
    CoreAudioSystem audio_;
    std::set<ProcessID> players_;
    std::map<std::string, AudioObjectID> devices_;
};

}  // namespace fadeloom
