// SPDX-License-Identifier: MIT
// This Mac's CoreAudio as a world for the contract: players are processes of this program, plugged devices are
// aggregate devices around the default output.
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

/// Public devices: a private one could not be the default output, and no other process could play on it. The destructor
/// removes them and restores the default output.
class CoreAudioWorld final : public ContractWorld {
public:
    CoreAudioWorld();
    ~CoreAudioWorld() override;

    /// Absent without an output device to build on.
    [[nodiscard]] static std::optional<std::string> originalOutput();
    /// Whether other processes may be captured: without permission taps deliver zeros.
    [[nodiscard]] static bool mayCapture();
    /// The command line that starts this program as a player.
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

    /// An aggregate device of these devices, in order.
    void plugTogether(const std::string& uid, const std::string& name, const std::set<std::string>& parts);

private:
    void runFor(std::chrono::milliseconds duration);

    QtMainLoop mainLoop_;
    CoreAudioSystem audio_;
    std::set<ProcessID> players_;
    std::map<std::string, AudioObjectID> devices_;
};

}  // namespace fadeloom
