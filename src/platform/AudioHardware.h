// SPDX-License-Identifier: MIT
// The audio system of the machine, in the shape of an audio hardware layer.
//
// Three actors meet here. *Processes* are the sources: one object per process that has opened audio. *Devices* are
// the destinations. A *process tap* captures some processes as one stereo mix and silences their own output while it
// is read; it is read through a private *aggregate device*, which joins the tap to an output device so that one IO
// procedure sees both in the same cycle:
//
//      processes ──► process tap ──► ┌ aggregate device ┐
//                                    │   IO procedure   │ ──► output device
//                                    └──────────────────┘
//
// Everything is an object with a 32-bit id and properties. What an adapter makes up is never reused while the program
// runs, so a stale id is an error and never another object.
//
// Not here: decisions (which process to tap, where to route it), typed reading (see hal/), and any promise that a
// written property reads back at once.
#pragma once

#include "base/RealTime.h"
#include "base/Subscription.h"
#include "platform/AudioObject.h"
#include "platform/AudioStream.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace fadeloom {

enum class TapMuteBehavior { unmuted = 0, muted = 1, mutedWhenTapped = 2 };

/// What a process tap captures, and how: a stereo mixdown of `processes`.
struct TapDescription {
    std::vector<AudioObjectID> processes;
    std::string uuid;
    std::string name;
    bool isPrivate = false;
    TapMuteBehavior muteBehavior = TapMuteBehavior::unmuted;
};

/// What an aggregate device is made of.
struct AggregateDescription {
    struct SubTap {
        std::string uid;
        bool drift = false;  // Drift compensation.
    };

    std::string name;
    std::string uid;
    std::string master;  // Unique id of the device that gives the clock.
    bool isPrivate = false;
    bool isStacked = false;
    bool tapAutoStart = false;
    std::vector<std::string> subDevices;  // Unique ids.
    std::vector<SubTap> taps;
};

/// What runs in each IO cycle.
class AudioIOProc {
public:
    /// Reads `input` and fills `output`; both live for this call only. Thread: the device's IO thread.
    /// Real time: no allocation or release, no waiting, no system call.
    virtual void render(AudioBuffers input, AudioBuffers output) noexcept FADELOOM_NONBLOCKING = 0;

protected:
    ~AudioIOProc() = default;
};

/// Thread: main, for every call and every listener.
class AudioHardware {
public:
    using Listener = std::function<void()>;

    virtual ~AudioHardware() = default;

    /// Size of a property's value in bytes.
    [[nodiscard]] virtual AudioResult<std::size_t> propertySize(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const = 0;
    /// Reads a value into `value` and returns how many bytes it took. `kAudioHardwareBadPropertySizeError` when
    /// `value` is too small for it (a list may have grown since its size was asked).
    [[nodiscard]] virtual AudioResult<std::size_t> readProperty(AudioObjectID object,
        const AudioObjectPropertyAddress& address, std::span<std::byte> value) const = 0;
    /// Writes a value. On some systems it takes effect a moment later; its listener tells when.
    [[nodiscard]] virtual AudioStatus writeProperty(AudioObjectID object,
        const AudioObjectPropertyAddress& address, std::span<const std::byte> value) = 0;
    /// Reads a text property; absent when the object has the property but no text.
    [[nodiscard]] virtual AudioResult<std::optional<std::string>> readText(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const = 0;
    /// Has `listener` called on the main loop after each change, until the subscription ends. Changes in quick
    /// succession may be told as one.
    [[nodiscard]] virtual AudioResult<Subscription> listen(
        AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener) = 0;

    [[nodiscard]] virtual AudioResult<AudioObjectID> createProcessTap(const TapDescription& description) = 0;
    /// Replaces the description of a tap. A tap that is being read follows without interruption.
    [[nodiscard]] virtual AudioStatus describeProcessTap(
        AudioObjectID tap, const TapDescription& description) = 0;
    virtual AudioStatus destroyProcessTap(AudioObjectID tap) = 0;

    [[nodiscard]] virtual AudioResult<AudioObjectID> createAggregateDevice(
        const AggregateDescription& description) = 0;
    virtual AudioStatus destroyAggregateDevice(AudioObjectID device) = 0;

    /// `proc` must outlive its `destroyIOProc`.
    [[nodiscard]] virtual AudioResult<AudioDeviceIOProcID> createIOProc(
        AudioObjectID device, AudioIOProc& proc) = 0;
    virtual AudioStatus destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc) = 0;
    [[nodiscard]] virtual AudioStatus start(AudioObjectID device, AudioDeviceIOProcID proc) = 0;
    /// When this returns, `render` is not running and is not called again until `start`.
    virtual AudioStatus stop(AudioObjectID device, AudioDeviceIOProcID proc) = 0;
};

}  // namespace fadeloom
