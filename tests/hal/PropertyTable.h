// SPDX-License-Identifier: MIT
// An audio system that is nothing but a table of properties, byte for byte, and that can be made to misbehave.
#pragma once

#include "platform/AudioHardware.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <map>
#include <utility>

namespace fadeloom {

class PropertyTable final : public AudioHardware {
public:
    using Key = std::pair<AudioObjectID, AudioObjectPropertyAddress>;

    template <typename T>
    void set(AudioObjectID object, const AudioObjectPropertyAddress& address, const T& value)
    {
        const auto bytes = std::as_bytes(std::span(&value, 1));
        bytes_[{object, address}].assign(bytes.begin(), bytes.end());
    }
    void setList(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::initializer_list<AudioObjectID> ids)
    {
        const auto bytes = std::as_bytes(std::span(ids.begin(), ids.size()));
        bytes_[{object, address}].assign(bytes.begin(), bytes.end());
    }
    void setBytes(
        AudioObjectID object, const AudioObjectPropertyAddress& address, std::vector<std::byte> bytes)
    {
        bytes_[{object, address}] = std::move(bytes);
    }
    void setText(AudioObjectID object, AudioObjectPropertySelector selector, std::optional<std::string> text)
    {
        texts_[{object, {.selector = selector}}] = std::move(text);
    }
    void remove(AudioObjectID object, const AudioObjectPropertyAddress& address)
    {
        bytes_.erase({object, address});
        texts_.erase({object, address});
    }
    [[nodiscard]] const std::vector<std::byte>& bytes(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const
    {
        return bytes_.at({object, address});
    }
    /// How often the value was asked for, successfully or not.
    [[nodiscard]] int readCount(AudioObjectID object, const AudioObjectPropertyAddress& address) const
    {
        const auto entry = readCounts_.find({object, address});
        return entry == readCounts_.end() ? 0 : entry->second;
    }

    /// Called between the question for a size and the reading of the value.
    std::function<void(std::span<const std::byte> asked)> beforeRead;
    AudioStatus readError = kAudioHardwareNoError;  // When not 0, every reading fails with it.
    AudioStatus writeError = kAudioHardwareNoError;

    AudioResult<std::size_t> propertySize(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override
    {
        const auto entry = bytes_.find({object, address});
        if (entry == bytes_.end())
            return std::unexpected(kAudioHardwareUnknownPropertyError);
        return entry->second.size();
    }
    AudioResult<std::size_t> readProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<std::byte> value) const override
    {
        readCounts_[{object, address}] += 1;
        if (beforeRead)
            beforeRead(value);
        const auto entry = bytes_.find({object, address});
        if (readError != kAudioHardwareNoError || entry == bytes_.end())
            return std::unexpected(
                readError != kAudioHardwareNoError ? readError : kAudioHardwareUnknownPropertyError);
        if (value.size() < entry->second.size())
            return std::unexpected(kAudioHardwareBadPropertySizeError);
        std::ranges::copy(entry->second, value.begin());
        return entry->second.size();
    }
    AudioStatus writeProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<const std::byte> value) override
    {
        if (writeError == kAudioHardwareNoError)
            bytes_[{object, address}].assign(value.begin(), value.end());
        return writeError;
    }
    AudioResult<std::optional<std::string>> readText(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override
    {
        readCounts_[{object, address}] += 1;
        const auto entry = texts_.find({object, address});
        if (entry == texts_.end())
            return std::unexpected(kAudioHardwareUnknownPropertyError);
        return entry->second;
    }

    // A table has no taps, no aggregate devices and no cycles.
    AudioResult<Subscription> listen(AudioObjectID, const AudioObjectPropertyAddress&, Listener) override
    {
        return std::unexpected(kAudioHardwareUnsupportedOperationError);
    }
    AudioResult<AudioObjectID> createProcessTap(const TapDescription&) override
    {
        return std::unexpected(kAudioHardwareUnsupportedOperationError);
    }
    AudioStatus describeProcessTap(AudioObjectID, const TapDescription&) override { return unsupported; }
    AudioStatus destroyProcessTap(AudioObjectID) override { return unsupported; }
    AudioResult<AudioObjectID> createAggregateDevice(const AggregateDescription&) override
    {
        return std::unexpected(kAudioHardwareUnsupportedOperationError);
    }
    AudioStatus destroyAggregateDevice(AudioObjectID) override { return unsupported; }
    AudioResult<AudioDeviceIOProcID> createIOProc(AudioObjectID, AudioIOProc&) override
    {
        return std::unexpected(kAudioHardwareUnsupportedOperationError);
    }
    AudioStatus destroyIOProc(AudioObjectID, AudioDeviceIOProcID) override { return unsupported; }
    AudioStatus start(AudioObjectID, AudioDeviceIOProcID) override { return unsupported; }
    AudioStatus stop(AudioObjectID, AudioDeviceIOProcID) override { return unsupported; }

private:
    static constexpr AudioStatus unsupported = kAudioHardwareUnsupportedOperationError;

    std::map<Key, std::vector<std::byte>> bytes_;
    std::map<Key, std::optional<std::string>> texts_;
    mutable std::map<Key, int> readCounts_;
};

}  // namespace fadeloom
