// SPDX-License-Identifier: MIT
// Interprets the properties of clients, streams and devices: pure functions of the mirror.
#pragma once

#include "platform/pipewire/Graph.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// Names of our nodes. Unique per run, because session managers remember streams' targets by name.
inline constexpr std::string_view parkNamePrefix = "com.fadeloom.park.";
inline constexpr std::string_view tapNamePrefix = "com.fadeloom.tap.";

/// The process behind a client, as far as its properties tell.
struct ClientIdentity {
    /// How far the pid can be trusted. `verified`: by the kernel. `claimed`: by the client itself, to be checked
    /// against `binary`. `unknown`: there is none, such as for a client on another machine.
    enum class Trust { verified, claimed, unknown };

    std::int32_t pid = -1;
    Trust trust = Trust::unknown;
    std::string binary;  // The client's claim of its program name.
    std::string portalAppID;  // Set by the server for sandboxed clients.

    friend bool operator==(const ClientIdentity&, const ClientIdentity&) = default;
};

[[nodiscard]] ClientIdentity identityOf(const GraphClient& client);

/// Whether a stream is application audio that we may capture. Excluded are streams pinned to their target or format
/// (moving would end them), and event sounds, which belong to the desktop.
[[nodiscard]] bool isTappable(const GraphNode& stream);
/// Whether a stream counts as its client's audio at all: every output stream except event sounds.
[[nodiscard]] bool isAppSound(const GraphNode& stream);
/// Whether a stream is running and not corked.
[[nodiscard]] bool isPlaying(const GraphNode& stream);
/// Whether an input stream is capturing a microphone: it is running, and is neither a level meter nor a recorder of a
/// device's output.
[[nodiscard]] bool isUsingMicrophone(const Graph& graph, const GraphNode& stream);

/// Whether pipewire-pulse is waiting for a link to a real sink before it replies to the client. Until then the client
/// waits and its stream carries no audio.
[[nodiscard]] bool needsDoorbell(const GraphNode& stream);

/// The side of the stereo mix that a stream's channel belongs to.
enum class TapSide { left, right, both };
[[nodiscard]] TapSide sideOf(std::string_view channel);

/// A device's channels, in port order, and its stereo pair.
struct DeviceLayout {
    std::vector<std::string> channels;
    std::uint32_t left = 1;  // Numbered from 1; both are the same for a mono device.
    std::uint32_t right = 2;

    friend bool operator==(const DeviceLayout&, const DeviceLayout&) = default;
};
/// FL and FR if they are named; else the one channel of a mono device twice; else the first two.
[[nodiscard]] DeviceLayout layoutOf(const std::vector<GraphPort>& inputPorts);

/// The display name of a device.
[[nodiscard]] std::string displayNameOf(const GraphNode& device);

/// A JSON object {"name": TEXT}, the format of the default device.
[[nodiscard]] std::string defaultDeviceValue(const std::string& nodeName);

}  // namespace fadeloom
