// SPDX-License-Identifier: MIT
// A double of the audio hardware layer: devices, processes, taps, aggregate devices and their IO in memory.
//
// It follows the documented behaviour of the real one: strings are returned with a reference that the reader releases,
// a property that is set changes a moment later, listeners are called on their queue and identified by their block, IO
// buffers of disabled streams have a size but no data, and a tap appears as the last input stream.
#pragma once

#include "tests/macos/doubles/Journal.h"

#import <CoreAudio/CATapDescription.h>
#import <CoreAudio/CoreAudio.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <expected>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace doubles {

struct Device {
    std::string uid;
    std::optional<std::string> name = "A device";
    std::vector<std::uint32_t> inputs{};  // Channels of each stream.
    std::vector<std::uint32_t> outputs{2};
    double rate = 48000;
    std::array<std::uint32_t, 2> stereoPair{1, 2};
    bool isAlive = true;
};

struct Process {
    std::int32_t pid = -1;
    std::optional<std::string> bundleID{};
    bool isRunningOutput = false;
    bool isRunningInput = false;
    float amplitude = 0;
};

/// The audio system's copy of a description.
struct Tap {
    std::string uuid;
    std::string name;
    std::vector<AudioObjectID> processes;
    bool isPrivate = false;
    CATapMuteBehavior muteBehavior = CATapUnmuted;
};

struct Proc {
    AudioDeviceIOBlock block;
    bool isRunning = false;
    std::vector<std::uint32_t> inputIsOn;
};

struct Aggregate {
    std::string description;  // The whole dictionary as text.
    std::string uid;
    std::string name;
    std::string master;
    std::string tapUID;
    std::map<AudioDeviceIOProcID, Proc> procs{};
    std::uint64_t framesRun = 0;
};

/// A value, or the status of reading it.
struct Property {
    std::vector<std::byte> bytes{};
    bool isText = false;
    std::optional<std::string> text{};
    std::function<OSStatus(const void* data)> write{};
};

/// Overrides the world's properties.
class PropertyAnswers {
public:
    virtual ~PropertyAnswers() = default;
    /// Called before a value is read into these bytes; anything but 0 fails the read.
    virtual OSStatus willRead(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<const std::byte> value) = 0;
    virtual std::expected<Property, OSStatus> property(
        AudioObjectID object, const AudioObjectPropertyAddress& address) = 0;
};

class AudioWorld {
public:
    static constexpr std::uint32_t framesInCycle = 512;

    /// The one that the functions of the audio hardware layer operate on.
    static AudioWorld& current();
    /// Starts over. Ids continue, so that none is reused.
    void reset();

    AudioObjectID plug(Device device);
    void unplug(const std::string& uid);
    /// It is still listed, but plays no more.
    void die(const std::string& uid);
    void setDefaultOutput(const std::string& uid);
    /// The audio service restarts: all its objects are gone, including listeners.
    void restartService();
    AudioObjectID addProcess(Process process);
    /// Changes a process and tells its listeners.
    void change(std::int32_t pid, const std::function<void(Process&)>& how);
    void endProcess(std::int32_t pid);

    /// The next call with this journal entry fails.
    void failNext(const std::string& call, OSStatus status) { failures[call] = status; }
    /// Applies pending changes; listeners are called when their queues run.
    void settleProperties();
    /// Runs one IO cycle of each running procedure, and advances the time accordingly.
    void runCycle();
    /// Time passes without a cycle.
    void pause(std::chrono::nanoseconds time) { hostTime += time; }

    // Used by the functions.
    [[nodiscard]] std::expected<Property, OSStatus> property(
        AudioObjectID object, const AudioObjectPropertyAddress& address);
    void changed(AudioObjectID object, AudioObjectPropertySelector selector);
    /// Records a call and its object, and returns its fault; 0 if there is none.
    [[nodiscard]] OSStatus begin(const std::string& call, AudioObjectID object);
    [[nodiscard]] AudioObjectID deviceOf(const std::string& uid) const;
    [[nodiscard]] const Tap* tapOf(const std::string& uid) const;
    [[nodiscard]] std::uint32_t inputStreamsOf(const Aggregate& aggregate) const;
    [[nodiscard]] std::string kindOf(AudioObjectID object) const;
    AudioObjectID nextID() { return ++lastID; }

    struct Listener {
        AudioObjectID object;
        AudioObjectPropertyAddress address;
        dispatch_queue_t queue;
        AudioObjectPropertyListenerBlock block;
    };

    std::map<AudioObjectID, Device> devices;
    std::map<AudioObjectID, Process> processes;
    std::map<AudioObjectID, Tap> taps;
    std::map<AudioObjectID, Aggregate> aggregates;
    AudioObjectID defaultOutput = kAudioObjectUnknown;
    std::vector<Listener> listeners;
    std::deque<std::function<void()>> pending;
    std::map<std::string, OSStatus> failures;
    AudioStreamBasicDescription tapFormat{};
    AudioObjectID lastID = 100;
    // Overrides those of their devices and taps.
    std::optional<std::uint32_t> inputsOfAggregates{};
    std::chrono::nanoseconds hostTime = std::chrono::hours(1);
    PropertyAnswers* answers = nullptr;

private:
    void run(Aggregate& aggregate, Proc& proc);
};

/// Four characters as text.
std::string characters(std::uint32_t code);

}  // namespace doubles
