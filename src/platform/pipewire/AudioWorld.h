// SPDX-License-Identifier: MIT
// The graph as the audio hardware layer tells it: devices and audio processes with object ids.
#pragma once

#include "platform/AudioObject.h"
#include "platform/pipewire/GraphRules.h"
#include "platform/pipewire/StreamTarget.h"

#include <atomic>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

/// A moment's picture; a plain value that any thread may read.
struct AudioWorld {
    struct Device {
        AudioObjectID id = 0;
        AudioObjectID streamID = 0;
        GraphID node = 0;
        GraphSerial serial = 0;
        std::string uid;
        std::string name;
        DeviceLayout layout;

        friend bool operator==(const Device&, const Device&) = default;
    };
    /// One process of the machine with all its clients. It stays while the process lives, also when it has closed its
    /// last client: a player that opens another for its next track is taken hold of from the first sample on. A
    /// client whose process cannot be told is a process of its own, for as long as it is there.
    struct Process {
        AudioObjectID id = 0;
        std::int32_t pid = -1;
        std::string portalAppID;  // Set for sandboxed applications.
        std::set<GraphSerial> clients;
        /// The uids of the devices that its streams would play to without us; empty while it has none.
        std::set<std::string> ownOutputs;
        bool isPlaying = false;
        bool isUsingMicrophone = false;

        friend bool operator==(const Process&, const Process&) = default;
    };

    std::vector<Device> devices;  // In the order in which they appeared.
    AudioObjectID defaultDevice = kAudioObjectUnknown;
    std::vector<Process> processes;  // By id, which is the order in which they appeared.

    [[nodiscard]] const Device* device(AudioObjectID id) const;
    [[nodiscard]] const Device* deviceWithUID(const std::string& uid) const;
    [[nodiscard]] const Process* process(AudioObjectID id) const;
    [[nodiscard]] const Process* processOfClient(GraphSerial client) const;
};

/// What differs between two pictures, as properties of objects whose listeners are to be told.
using ChangedProperty = std::pair<AudioObjectID, AudioObjectPropertyAddress>;
[[nodiscard]] std::vector<ChangedProperty> changesBetween(const AudioWorld& before, const AudioWorld& after);

/// Gives out object ids, each once. Thread: any.
class AudioObjectIDs {
public:
    [[nodiscard]] AudioObjectID next();

private:
    std::atomic<AudioObjectID> last_ = kAudioObjectSystemObject;
};

/// Draws the picture, and remembers which object stands for what. Thread: the graph thread.
class AudioWorldBuilder {
public:
    struct Questions {
        /// Whether the process runs the program that its client names: pids are reused.
        std::function<bool(std::int32_t pid, const std::string& binary)> runs;
        /// Asks to be told by `processEnded`. False when that cannot be had.
        std::function<bool(std::int32_t pid)> watch;
    };

    AudioWorldBuilder(AudioObjectIDs& ids, Questions questions)
        : ids_(ids)
        , questions_(std::move(questions))
    {
    }

    /// `chosenTarget`: what anybody but us has chosen for a stream.
    [[nodiscard]] AudioWorld build(const Graph& graph, const ChosenTargetOf& chosenTarget);
    void processEnded(std::int32_t pid);
    /// Another server counts its serials anew.
    void forget();

private:
    struct KnownDevice {
        DeviceLayout layout;
        AudioObjectID id = 0;
        AudioObjectID streamID = 0;
    };

    /// What makes two clients one process: the pid, where it can be believed; else the client itself.
    struct ProcessKey {
        std::int32_t pid = -1;
        GraphSerial client = 0;

        friend auto operator<=>(const ProcessKey&, const ProcessKey&) = default;
    };
    struct KnownProcess {
        AudioObjectID id = 0;
        bool isWatched = false;  // Stays without a client until it ends.
    };

    void addDevices(const Graph& graph, AudioWorld& world);
    void addProcesses(const Graph& graph, const ChosenTargetOf& chosenTarget, AudioWorld& world);
    [[nodiscard]] const ProcessKey& keyOf(const GraphClient& client);

    AudioObjectIDs& ids_;
    Questions questions_;
    std::map<GraphSerial, KnownDevice> devices_;
    std::map<ProcessKey, KnownProcess> processes_;  // Those that have, or have had, a stream.
    std::map<GraphSerial, ProcessKey> keys_;  // By client; found out once.
};

}  // namespace fadeloom
