// SPDX-License-Identifier: MIT
// What the properties of clients, streams and devices mean for us: pure questions about the mirror.
#pragma once

#include "platform/pipewire/Graph.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// Names of our nodes. Unique per run: session managers remember streams' targets by name.
inline constexpr std::string_view parkNamePrefix = "com.fadeloom.park.";
inline constexpr std::string_view tapNamePrefix = "com.fadeloom.tap.";

/// Who is behind a client, as far as its properties tell.
struct ClientIdentity {
    /// How far the pid may be believed. `verified`: checked by the kernel. `claimed`: said by the client itself, to be
    /// held against `binary` before use. `unknown`: there is none, as of a client on another machine.
    enum class Trust { verified, claimed, unknown };

    std::int32_t pid = -1;
    Trust trust = Trust::unknown;
    std::string binary;  // What the client says its program is called.
    std::string portalAppID;  // Set by the server for sandboxed clients.

    friend bool operator==(const ClientIdentity&, const ClientIdentity&) = default;
};

[[nodiscard]] ClientIdentity identityOf(const GraphClient& client);

/// Whether a stream is an application's sound that we may take hold of. Not so: streams that insist on their target
/// or their format (moving them would end them), and event sounds, which belong to the desktop.
[[nodiscard]] bool isTappable(const GraphNode& stream);
/// Whether a stream counts as its client's sound at all: every output stream but event sounds.
[[nodiscard]] bool isAppSound(const GraphNode& stream);
/// Whether a stream runs and is not held back by its client.
[[nodiscard]] bool isPlaying(const GraphNode& stream);
/// Whether an input stream listens to a microphone now: it runs, and is neither a level meter nor a recorder of
/// what a device plays.
[[nodiscard]] bool isUsingMicrophone(const Graph& graph, const GraphNode& stream);

/// Whether pipewire-pulse still has to be shown a link to a real sink before it answers the client. Until then the
/// client waits and its stream carries no audio.
[[nodiscard]] bool needsDoorbell(const GraphNode& stream);

/// Which side of the stereo mix a stream's channel belongs to.
enum class TapSide { left, right, both };
[[nodiscard]] TapSide sideOf(std::string_view channel);

/// The channels of a device, in port order, and the pair that stereo sound belongs on.
struct DeviceLayout {
    std::vector<std::string> channels;
    std::uint32_t left = 1;  // Numbered from 1; the same twice for a mono device.
    std::uint32_t right = 2;

    friend bool operator==(const DeviceLayout&, const DeviceLayout&) = default;
};
/// FL and FR where they are named; else the one channel of a mono device twice; else the first two.
[[nodiscard]] DeviceLayout layoutOf(const std::vector<GraphPort>& inputPorts);

/// The name people read for a device.
[[nodiscard]] std::string displayNameOf(const GraphNode& device);

/// A JSON object {"name": TEXT}, as the default device is written.
[[nodiscard]] std::string defaultDeviceValue(const std::string& nodeName);

}  // namespace fadeloom
