// SPDX-License-Identifier: MIT
#include "platform/pipewire/PipeWireHardware.h"

#include "platform/MainLoop.h"
#include "platform/pipewire/GraphSession.h"
#include "platform/pipewire/PipeWireObjects.h"
#include "platform/pipewire/PropertyListeners.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <utility>

namespace fadeloom {

PipeWireHardware::PipeWireHardware(MainLoop& mainLoop, Options options)
    : mainLoop_(mainLoop)
    , options_(std::move(options))
    , listeners_(std::make_shared<PropertyListeners>())
{
    const std::weak_ptr listeners = listeners_;
    GraphSession::Callbacks callbacks{
        .changed =
            [this, listeners](std::vector<ChangedProperty> changes) {
                mainLoop_.post([listeners, changes = std::move(changes)] {
                    if (const auto alive = listeners.lock())
                        alive->tell(changes);
                });
            },
        .report =
            [this, listeners](SystemLog::Level level, std::string text) {
                mainLoop_.post([this, listeners, level, text = std::move(text)] {
                    if (!listeners.expired() && options_.report)
                        options_.report(level, text);
                });
            },
    };
    session_ = std::make_unique<GraphSession>(ids_, std::move(callbacks));
}

PipeWireHardware::~PipeWireHardware()
{
    for (const auto& [id, aggregate] : aggregates_) {
        for (const auto& proc : aggregate->procs) {
            if (auto* path = std::exchange(proc->path, nullptr))
                session_->stopPath(*path);
        }
    }
    session_.reset();
}

AudioResult<std::size_t> PipeWireHardware::propertySize(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    const auto bytes = valueOf(object, address);
    if (!bytes)
        return std::unexpected{bytes.error()};
    return bytes->size();
}

AudioResult<std::size_t> PipeWireHardware::readProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<std::byte> value) const
{
    const auto bytes = valueOf(object, address);
    if (!bytes)
        return std::unexpected{bytes.error()};
    if (value.size() < bytes->size())
        return std::unexpected{kAudioHardwareBadPropertySizeError};
    std::ranges::copy(*bytes, value.begin());
    return bytes->size();
}

AudioStatus PipeWireHardware::writeProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value)
{
    if (object != kAudioObjectSystemObject || address.selector != kAudioHardwarePropertyDefaultOutputDevice)
        return valueOf(object, address) ? kAudioHardwareIllegalOperationError
                                        : valueOf(object, address).error();
    AudioObjectID id = kAudioObjectUnknown;
    if (value.size() != sizeof id)
        return kAudioHardwareBadPropertySizeError;
    std::memcpy(&id, value.data(), sizeof id);
    const auto world = session_->world();
    const auto* device = world->device(id);
    if (!device)
        return kAudioHardwareBadDeviceError;
    return session_->setDefaultDevice(device->uid) ? kAudioHardwareNoError : kAudioHardwareNotRunningError;
}

AudioResult<Subscription> PipeWireHardware::listen(
    AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener)
{
    // Text properties never change here; they may be listened to all the same.
    if (const auto value = valueOf(object, address); !value && !readText(object, address))
        return std::unexpected{value.error()};
    return listeners_->add({object, address}, std::move(listener));
}

AudioResult<AudioObjectID> PipeWireHardware::createProcessTap(const TapDescription& description)
{
    if (!session_->isConnected())
        return std::unexpected{kAudioHardwareNotRunningError};
    const auto id = ids_.next();
    taps_[id] = description;
    return id;
}

AudioStatus PipeWireHardware::describeProcessTap(AudioObjectID tap, const TapDescription& description)
{
    const auto found = taps_.find(tap);
    if (found == taps_.end())
        return kAudioHardwareBadObjectError;
    found->second = description;
    for (const auto& [id, aggregate] : aggregates_) {
        for (const auto& proc : aggregate->procs) {
            if (proc->path)
                session_->setProcesses(*proc->path, processesOf(*aggregate));
        }
    }
    return kAudioHardwareNoError;
}

AudioStatus PipeWireHardware::destroyProcessTap(AudioObjectID tap)
{
    return taps_.erase(tap) ? kAudioHardwareNoError : kAudioHardwareBadObjectError;
}

AudioResult<AudioObjectID> PipeWireHardware::createAggregateDevice(const AggregateDescription& description)
{
    if (!session_->world()->deviceWithUID(description.master))
        return std::unexpected{kAudioHardwareBadDeviceError};
    const auto id = ids_.next();
    aggregates_[id] = std::make_unique<Aggregate>(Aggregate{description, ids_.next(), ids_.next(), {}});
    return id;
}

AudioStatus PipeWireHardware::destroyAggregateDevice(AudioObjectID device)
{
    const auto found = aggregates_.find(device);
    if (found == aggregates_.end())
        return kAudioHardwareBadObjectError;
    while (!found->second->procs.empty())
        destroyIOProc(device, found->second->procs.back().get());
    aggregates_.erase(found);
    return kAudioHardwareNoError;
}

const AudioObjectID* PipeWireHardware::tapWithUUID(const std::string& uuid) const
{
    const auto found =
        std::ranges::find_if(taps_, [&](const auto& entry) { return entry.second.uuid == uuid; });
    return found == taps_.end() ? nullptr : &found->first;
}

std::set<AudioObjectID> PipeWireHardware::processesOf(const Aggregate& aggregate) const
{
    std::set<AudioObjectID> processes;
    for (const auto& subTap : aggregate.description.taps) {
        if (const auto* tap = tapWithUUID(subTap.uid)) {
            const auto& tapped = taps_.at(*tap).processes;
            processes.insert(tapped.begin(), tapped.end());
        }
    }
    return processes;
}

AudioResult<AudioDeviceIOProcID> PipeWireHardware::createIOProc(AudioObjectID device, AudioIOProc& proc)
{
    const auto found = aggregates_.find(device);
    if (found == aggregates_.end())
        return std::unexpected{kAudioHardwareBadObjectError};
    found->second->procs.push_back(std::make_unique<Proc>(Proc{proc}));
    return found->second->procs.back().get();
}

PipeWireHardware::Proc* PipeWireHardware::procOf(AudioObjectID device, AudioDeviceIOProcID proc) const
{
    const auto aggregate = aggregates_.find(device);
    if (aggregate == aggregates_.end())
        return nullptr;
    const auto& procs = aggregate->second->procs;
    const auto found =
        std::ranges::find(procs, proc, [](const auto& known) { return static_cast<void*>(known.get()); });
    return found == procs.end() ? nullptr : found->get();
}

AudioStatus PipeWireHardware::destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc)
{
    if (const auto status = stop(device, proc); status != kAudioHardwareNoError)
        return status;
    std::erase_if(aggregates_.at(device)->procs, [&](const auto& known) { return known.get() == proc; });
    return kAudioHardwareNoError;
}

AudioStatus PipeWireHardware::start(AudioObjectID device, AudioDeviceIOProcID proc)
{
    auto* known = procOf(device, proc);
    if (!known)
        return kAudioHardwareBadObjectError;
    if (known->path)
        return kAudioHardwareNoError;
    const auto& aggregate = *aggregates_.at(device);
    const auto world = session_->world();
    const auto* output = world->deviceWithUID(aggregate.description.master);
    if (!output)
        return kAudioHardwareBadDeviceError;
    known->path = session_->startPath(processesOf(aggregate), *output, known->proc);
    return known->path ? kAudioHardwareNoError : kAudioHardwareNotRunningError;
}

AudioStatus PipeWireHardware::stop(AudioObjectID device, AudioDeviceIOProcID proc)
{
    auto* known = procOf(device, proc);
    if (!known)
        return kAudioHardwareBadObjectError;
    if (auto* path = std::exchange(known->path, nullptr)) {
        session_->stopPath(*path);
        // In a later turn: a tap that is rebuilt takes its streams over from the old one, which must not give them
        // back in between.
        mainLoop_.post([this, alive = std::weak_ptr{listeners_}] {
            if (!alive.expired())
                session_->releaseStopped();
        });
    }
    return kAudioHardwareNoError;
}

}  // namespace fadeloom
