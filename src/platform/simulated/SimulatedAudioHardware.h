// SPDX-License-Identifier: MIT
// The program's side of a simulated audio system: every call of the audio hardware layer, counted, kept in a journal,
// and refused on demand.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/simulated/SimulatedAudioSystem.h"
#include "platform/simulated/SimulatedFaults.h"

#include <cstddef>
#include <map>
#include <vector>

namespace fadeloom {

class SimulatedAudioHardware final : public AudioHardware {
public:
    explicit SimulatedAudioHardware(SimulatedAudioSystem& system);

    AudioResult<std::size_t> propertySize(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override;
    AudioResult<std::size_t> readProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<std::byte> value) const override;
    AudioStatus writeProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<const std::byte> value) override;
    AudioResult<std::optional<std::string>> readText(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override;
    AudioResult<Subscription> listen(
        AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener) override;
    AudioResult<AudioObjectID> createProcessTap(const TapDescription& description) override;
    AudioStatus describeProcessTap(AudioObjectID tap, const TapDescription& description) override;
    AudioStatus destroyProcessTap(AudioObjectID tap) override;
    AudioResult<AudioObjectID> createAggregateDevice(const AggregateDescription& description) override;
    AudioStatus destroyAggregateDevice(AudioObjectID device) override;
    AudioResult<AudioDeviceIOProcID> createIOProc(AudioObjectID device, AudioIOProc& proc) override;
    AudioStatus destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc) override;
    AudioStatus start(AudioObjectID device, AudioDeviceIOProcID proc) override;
    AudioStatus stop(AudioObjectID device, AudioDeviceIOProcID proc) override;

    /// One call that was to change something, whether it did or not. The object is the one that was made, or the one
    /// the call was about.
    struct Call {
        AudioOperation operation{};
        AudioObjectID object = kAudioObjectUnknown;
        AudioStatus status = kAudioHardwareNoError;
        AudioObjectPropertySelector selector = 0;  // Of a property that was written.

        friend bool operator==(const Call&, const Call&) = default;
    };
    /// Every call so far, in order; reads and listeners are not among them.
    [[nodiscard]] const std::vector<Call>& journal() const { return journal_; }
    /// The operations of the journal alone.
    [[nodiscard]] std::vector<AudioOperation> operations() const;
    void clearJournal() { journal_.clear(); }
    /// Every description that was passed to create or to describe again, in order.
    [[nodiscard]] const std::vector<TapDescription>& tapDescriptions() const { return tapDescriptions_; }
    [[nodiscard]] const std::vector<AggregateDescription>& aggregateDescriptions() const
    {
        return aggregateDescriptions_;
    }

    /// How often a property's value was read since the counts were cleared, of whatever object. Sizes do not count.
    [[nodiscard]] int readCount(AudioObjectPropertySelector selector) const;
    /// All reads of values.
    [[nodiscard]] int readCount() const;
    void clearReadCounts() { readCounts_.clear(); }
    /// How many listeners are installed.
    [[nodiscard]] std::size_t listenerCount() const { return system_.listeners().count(); }

    SimulatedFaults& faults() { return faults_; }

private:
    AudioResult<std::size_t> readStreamUsage(
        SimulatedAudioDevice& device, AudioObjectPropertyScope scope, std::span<std::byte> value) const;
    AudioStatus writeStreamUsage(
        SimulatedAudioDevice& device, AudioObjectPropertyScope scope, std::span<const std::byte> value);
    AudioStatus write(
        AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value);
    AudioResult<AudioObjectID> makeAggregate(const AggregateDescription& description);
    AudioStatus setRunning(AudioObjectID device, AudioDeviceIOProcID proc, bool isRunning);
    [[nodiscard]] AudioStatus check(const TapDescription& description) const;
    AudioStatus note(AudioOperation operation, AudioObjectID object, AudioStatus status,
        AudioObjectPropertySelector selector = 0);

    SimulatedAudioSystem& system_;
    mutable SimulatedFaults faults_;  // Reading uses up what is refused once.
    mutable std::map<AudioObjectPropertySelector, int> readCounts_;
    std::vector<Call> journal_;
    std::vector<TapDescription> tapDescriptions_;
    std::vector<AggregateDescription> aggregateDescriptions_;
    std::uintptr_t lastProcID_ = 0;
};

}  // namespace fadeloom
