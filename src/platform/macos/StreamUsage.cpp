// SPDX-License-Identifier: MIT
#include "platform/macos/StreamUsage.h"

#include "platform/macos/HAL.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <utility>

namespace fadeloom {

namespace {

using Record = AudioHardwareIOProcStreamUsage;
using Flag = std::uint32_t;

// The variable-length tail of the record has no type, so fields are accessed at their offsets.
template <typename Field>
Field fieldAt(std::span<const std::byte> record, std::size_t offset)
{
    Field field;
    std::memcpy(&field, record.subspan(offset, sizeof(Field)).data(), sizeof(Field));
    return field;
}

template <typename Field>
void setFieldAt(std::span<std::byte> record, std::size_t offset, const Field& field)
{
    std::memcpy(record.subspan(offset, sizeof(Field)).data(), &field, sizeof(Field));
}

constexpr std::size_t flagOffset(std::size_t stream)
{
    return offsetof(Record, mStreamIsOn) + stream * sizeof(Flag);
}

AudioObjectPropertyAddress address(AudioObjectPropertyScope scope)
{
    return HAL::address(kAudioDevicePropertyIOProcStreamUsage, scope);
}

}  // namespace

StreamUsage::StreamUsage(std::vector<std::byte> record)
    : record_(std::move(record))
{
}

std::optional<StreamUsage> StreamUsage::read(
    AudioObjectID device, AudioDeviceIOProcID proc, AudioObjectPropertyScope scope)
{
    const auto size = HAL::size(device, address(scope));
    if (!size || *size < sizeof(Record))
        return std::nullopt;

    // The query's buffer carries the procedure that it is for.
    std::vector<std::byte> record(*size);
    setFieldAt(record, offsetof(Record, mIOProc), proc);
    const auto bytesRead = HAL::read(device, address(scope), record);
    if (!bytesRead || *bytesRead < sizeof(Record) || *bytesRead > record.size())
        return std::nullopt;
    record.resize(*bytesRead);

    StreamUsage usage(std::move(record));
    if (flagOffset(usage.streamCount()) > *bytesRead)
        return std::nullopt;
    return usage;
}

std::size_t StreamUsage::streamCount() const
{
    return fieldAt<std::uint32_t>(record_, offsetof(Record, mNumberStreams));
}

bool StreamUsage::isOn(std::size_t stream) const
{
    assert(stream < streamCount());
    return fieldAt<Flag>(record_, flagOffset(stream)) != 0;
}

void StreamUsage::switchOff(std::size_t stream)
{
    assert(stream < streamCount());
    setFieldAt(record_, flagOffset(stream), Flag{0});
}

OSStatus StreamUsage::write(AudioObjectID device, AudioObjectPropertyScope scope) const
{
    return HAL::write(device, address(scope), record_);
}

}  // namespace fadeloom
