// SPDX-License-Identifier: MIT
// The audio hardware layer as a mere table of properties, byte for byte, with fault injection.
#pragma once

#include "platform/macos/HAL.h"
#include "tests/macos/doubles/AudioWorld.h"

#include <array>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

/// Replaces the audio world's properties during its lifetime.
class PropertyTable final : public doubles::PropertyAnswers {
public:
    PropertyTable() { doubles::AudioWorld::current().answers = this; }
    PropertyTable(const PropertyTable&) = delete;
    PropertyTable& operator=(const PropertyTable&) = delete;
    ~PropertyTable() override { doubles::AudioWorld::current().answers = nullptr; }

    template <typename T>
    void set(AudioObjectID object, const AudioObjectPropertyAddress& address, const T& value)
    {
        const auto bytes = std::as_bytes(std::span(&value, 1));
        properties_[keyOf(object, address)] = {.bytes = {bytes.begin(), bytes.end()}};
    }
    void setList(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::initializer_list<AudioObjectID> ids)
    {
        const auto bytes = std::as_bytes(std::span(ids.begin(), ids.size()));
        setBytes(object, address, {bytes.begin(), bytes.end()});
    }
    void setBytes(
        AudioObjectID object, const AudioObjectPropertyAddress& address, std::vector<std::byte> bytes)
    {
        properties_[keyOf(object, address)] = {.bytes = std::move(bytes)};
    }
    void setText(AudioObjectID object, AudioObjectPropertySelector selector, std::optional<std::string> text)
    {
        properties_[keyOf(object, HAL::address(selector))] = {
            .bytes = std::vector<std::byte>(sizeof(void*)), .isText = true, .text = std::move(text)};
    }
    void remove(AudioObjectID object, const AudioObjectPropertyAddress& address)
    {
        properties_.erase(keyOf(object, address));
    }
    [[nodiscard]] const std::vector<std::byte>& bytes(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const
    {
        return properties_.at(keyOf(object, address)).bytes;
    }
    /// The number of reads, successful or not.
    [[nodiscard]] int readCount(AudioObjectID object, const AudioObjectPropertyAddress& address) const
    {
        const auto entry = readCounts_.find(keyOf(object, address));
        return entry == readCounts_.end() ? 0 : entry->second;
    }

    /// Called between the size query and the read.
    std::function<void(std::span<const std::byte> asked)> beforeRead;
    OSStatus readError = kAudioHardwareNoError;  // If not 0, every read fails with it.
    OSStatus writeError = kAudioHardwareNoError;

    OSStatus willRead(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<const std::byte> value) override
    {
        ++readCounts_[keyOf(object, address)];
        if (beforeRead)
            beforeRead(value);
        return readError;
    }
    std::expected<doubles::Property, OSStatus> property(
        AudioObjectID object, const AudioObjectPropertyAddress& address) override
    {
        const auto entry = properties_.find(keyOf(object, address));
        if (entry == properties_.end())
            return std::unexpected(OSStatus{kAudioHardwareUnknownPropertyError});
        doubles::Property property = entry->second;
        property.write = [this, stored = &entry->second](const void* data) {
            if (writeError == kAudioHardwareNoError)
                std::memcpy(stored->bytes.data(), data, stored->bytes.size());
            return writeError;
        };
        return property;
    }

private:
    using Key = std::array<UInt32, 4>;

    static Key keyOf(AudioObjectID object, const AudioObjectPropertyAddress& address)
    {
        return {object, address.mSelector, address.mScope, address.mElement};
    }

    std::map<Key, doubles::Property> properties_;
    std::map<Key, int> readCounts_;
};

}  // namespace fadeloom
