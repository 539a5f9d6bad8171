// SPDX-License-Identifier: MIT
// The graph in terms of the audio system: output devices and audio processes.
#pragma once

#include "platform/AudioProcess.h"
#include "platform/OutputDevice.h"
#include "platform/pipewire/GraphRules.h"
#include "platform/pipewire/StreamTarget.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

/// An immutable snapshot; a plain value that any thread may read.
struct AudioWorld {
    struct Device {
        OutputDeviceID id = 0;
        GraphID node = 0;
        GraphSerial serial = 0;
        std::string uid;
        std::string name;
        DeviceLayout layout;

        friend bool operator==(const Device&, const Device&) = default;
    };
    /// One process of the machine with all its clients. It exists as long as the process, even after its last client
    /// has closed: a player that opens a new client for its next track is captured from the first sample. A client
    /// whose process is unknown is treated as a process, for its own lifetime.
    struct Process {
        AudioProcessID id = 0;
        std::int32_t pid = -1;
        std::string portalAppID;  // Set for sandboxed applications.
        std::set<GraphSerial> clients;
        /// The uids of the devices that its streams would play to without us; empty while it has no stream.
        std::set<std::string> ownOutputs;
        std::optional<OutOfReach> outOfReach;
        bool isPlaying = false;
        bool isUsingMicrophone = false;

        friend bool operator==(const Process&, const Process&) = default;
    };

    std::vector<Device> devices;  // In the order in which they appeared.
    OutputDeviceID defaultDevice = 0;  // 0 if there is none.
    std::vector<Process> processes;  // By id, which is the order in which they appeared.

    [[nodiscard]] const Device* device(OutputDeviceID id) const;
    [[nodiscard]] const Device* deviceWithUID(const std::string& uid) const;
    [[nodiscard]] const Process* process(AudioProcessID id) const;
    [[nodiscard]] const Process* processOfClient(GraphSerial client) const;
};

/// The kinds of change that are announced.
struct AudioChanges {
    bool processes = false;  // Which ones there are, or the state of one of them.
    bool outputDevices = false;
    bool defaultOutput = false;

    [[nodiscard]] bool any() const { return processes || outputDevices || defaultOutput; }

    friend bool operator==(const AudioChanges&, const AudioChanges&) = default;
};
[[nodiscard]] AudioChanges changesBetween(const AudioWorld& before, const AudioWorld& after);

/// Builds snapshots, and assigns the ids. Thread: the graph thread.
class AudioWorldBuilder {
public:
    struct Questions {
        /// Whether the process runs the program that its client claims: pids are reused.
        std::function<bool(std::int32_t pid, const std::string& binary)> runs;
        /// Requests a call of `processEnded`. False if that is impossible.
        std::function<bool(std::int32_t pid)> watch;
    };

    explicit AudioWorldBuilder(Questions questions)
        : questions_(std::move(questions))
    {
    }

    struct StreamQueries {
        ChosenTargetOf chosenTarget;
        /// Whether a stream is held: it would play, and counts as playing.
        std::function<bool(const GraphNode& stream)> isHeld;
        /// Whether a stream is left to another program, which keeps moving it.
        std::function<bool(const GraphNode& stream)> isLeftAlone;
    };
    [[nodiscard]] AudioWorld build(const Graph& graph, const StreamQueries& knowledge);
    void processEnded(std::int32_t pid);
    /// A restarted server reuses serials.
    void forget();

private:
    struct KnownDevice {
        DeviceLayout layout;
        OutputDeviceID id = 0;
    };

    /// Identifies the process of a client: the pid, if it is credible; else the client itself.
    struct ProcessKey {
        std::int32_t pid = -1;
        GraphSerial client = 0;

        friend auto operator<=>(const ProcessKey&, const ProcessKey&) = default;
    };
    struct KnownProcess {
        AudioProcessID id = 0;
        bool isWatched = false;  // Kept without clients until it exits.
    };

    void addDevices(const Graph& graph, AudioWorld& world);
    void addProcesses(const Graph& graph, const StreamQueries& knowledge, AudioWorld& world);
    [[nodiscard]] const ProcessKey& keyOf(const GraphClient& client);

    Questions questions_;
    std::uint32_t lastID_ = 0;  // Of devices and processes; never reused.
    std::map<GraphSerial, KnownDevice> devices_;
    std::map<ProcessKey, KnownProcess> processes_;  // Those that have, or have had, a stream.
    std::map<GraphSerial, ProcessKey> keys_;  // By client; determined once.
};

}  // namespace fadeloom
