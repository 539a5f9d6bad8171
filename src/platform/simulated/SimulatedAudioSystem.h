// SPDX-License-Identifier: MIT
// The program's side of a simulated audio system: every call, counted, and refused on demand.
#pragma once

#include "platform/AudioSystem.h"
#include "platform/simulated/SimulatedAudioWorld.h"

#include <map>
#include <vector>

namespace fadeloom {

/// Reading, changing, and (never refused) taking down.
enum class AudioOperation {
    processes,
    outputDevices,
    sampleRate,
    defaultOutput,
    setDefaultOutput,
    createTap,
    setTapProcesses,
    destroyTap,
};

enum class HowOften { once, always };

class SimulatedAudioSystem final : public AudioSystem {
public:
    explicit SimulatedAudioSystem(SimulatedAudioWorld& world);

    std::vector<AudioProcess> processes(ReadMic readMic) override;
    Subscription whenProcessesChange(Listener listener) override;
    std::vector<OutputDevice> outputDevices() const override;
    Subscription whenOutputDevicesChange(Listener listener) override;
    double sampleRate(OutputDeviceID device) const override;
    std::optional<std::string> defaultOutput() const override;
    Subscription whenDefaultOutputChanges(Listener listener) override;
    bool setDefaultOutput(const OutputDevice& device) override;
    HostTime hostTime() const override { return world_.hostTime(); }
    std::expected<std::unique_ptr<ProcessTap>, TapError> createTap(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc) override;

    /// Refuses a call, the next one or all of them: what is read is empty, what is changed stays. `status`: of the
    /// error, where the call has one.
    void refuse(AudioOperation operation, HowOften howOften, std::int32_t status);
    /// Ends every refusal of `operation`.
    void allow(AudioOperation operation) { refusals_.erase(operation); }

    /// The calls that were to change something, whether they did or not, in order.
    [[nodiscard]] const std::vector<AudioOperation>& operations() const { return operations_; }
    void clearOperations() { operations_.clear(); }
    /// How often a call was made since the counts were cleared.
    [[nodiscard]] int callCount(AudioOperation operation) const;
    /// All calls.
    [[nodiscard]] int callCount() const;
    void clearCallCounts() { callCounts_.clear(); }
    /// Whether the last question for processes was for their microphones, too.
    [[nodiscard]] bool wasMicRead() const { return wasMicRead_; }
    /// Everything that was requested of `createTap`, in order.
    [[nodiscard]] const std::vector<TapRequest>& tapRequests() const { return tapRequests_; }

private:
    class Tap;
    struct Refusal {
        HowOften howOften;
        std::int32_t status;
    };

    /// Counts a call; its refusal if there is one, which is used up if it was for once.
    std::optional<Refusal> begin(AudioOperation operation) const;
    std::optional<Refusal> beginChange(AudioOperation operation);
    [[nodiscard]] bool areKnown(const std::vector<AudioProcessID>& processes) const;

    SimulatedAudioWorld& world_;
    mutable std::map<AudioOperation, Refusal> refusals_;  // Reading uses up what is refused once.
    mutable std::map<AudioOperation, int> callCounts_;
    std::vector<AudioOperation> operations_;
    std::vector<TapRequest> tapRequests_;
    bool wasMicRead_ = false;
};

}  // namespace fadeloom
