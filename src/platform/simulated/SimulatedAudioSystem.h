// SPDX-License-Identifier: MIT
// The program's view of a simulated audio system: all calls, counted, with fault injection.
#pragma once

#include "platform/AudioSystem.h"
#include "platform/simulated/SimulatedAudioWorld.h"

#include <map>
#include <vector>

namespace fadeloom {

/// Queries, changes, and teardown, which never fails.
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

    /// Makes an operation fail, the next time or always: queries return nothing, changes have no effect. `status`: the
    /// error's code, if the operation has one.
    void refuse(AudioOperation operation, HowOften howOften, std::int32_t status);
    /// Ends all faults of `operation`.
    void allow(AudioOperation operation) { refusals_.erase(operation); }

    /// The mutating calls, successful or not, in order.
    [[nodiscard]] const std::vector<AudioOperation>& operations() const { return operations_; }
    void clearOperations() { operations_.clear(); }
    /// The number of calls since the counts were cleared.
    [[nodiscard]] int callCount(AudioOperation operation) const;
    /// All calls.
    [[nodiscard]] int callCount() const;
    void clearCallCounts() { callCounts_.clear(); }
    /// Whether the last query for processes included microphone use.
    [[nodiscard]] bool wasMicRead() const { return wasMicRead_; }
    /// All arguments of `createTap`, in order.
    [[nodiscard]] const std::vector<TapRequest>& tapRequests() const { return tapRequests_; }

private:
    class Tap;
    struct Refusal {
        HowOften howOften;
        std::int32_t status;
    };

    /// Counts a call; returns its fault if there is one, which is consumed unless permanent.
    std::optional<Refusal> begin(AudioOperation operation) const;
    std::optional<Refusal> beginChange(AudioOperation operation);
    [[nodiscard]] bool areKnown(const std::vector<AudioProcessID>& processes) const;

    SimulatedAudioWorld& world_;
    mutable std::map<AudioOperation, Refusal> refusals_;  // Queries consume one-time faults.
    mutable std::map<AudioOperation, int> callCounts_;
    std::vector<AudioOperation> operations_;
    std::vector<TapRequest> tapRequests_;
    bool wasMicRead_ = false;
};

}  // namespace fadeloom
