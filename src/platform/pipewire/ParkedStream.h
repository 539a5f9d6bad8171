// SPDX-License-Identifier: MIT
// One stream that we have moved off its device: its target in the session manager's metadata, and the user's own
// choice, which is preserved and restored.
//
// The target is the park's *name*. Session managers look up a stored target by serial, fail for the name, and so never
// store anything of ours. The failed lookup makes them forget the user's previous choice; writing the user's node as
// "target.node" afterwards is what they remember last.
#pragma once

#include "platform/pipewire/GraphConnection.h"
#include "platform/pipewire/StreamTarget.h"

#include <chrono>
#include <deque>
#include <string>
#include <utility>

namespace fadeloom {

/// Thread: the graph thread or one that holds its lock.
class ParkedStream {
public:
    /// Records the user's current choice; writes nothing yet.
    ParkedStream(GraphConnection& connection, const GraphNode& stream);

    [[nodiscard]] GraphID id() const { return id_; }
    [[nodiscard]] GraphSerial serial() const { return serial_; }

    /// Ensures that the session manager keeps the stream on the park. A change by anybody else is recorded as the
    /// user's choice and reverted, at most once per `rewriteInterval`; returns false if it must be called again then.
    bool ensureParkedOn(const std::string& parkName);
    /// The choice of anybody but us.
    [[nodiscard]] const ChosenTarget& chosen() const { return chosen_; }
    /// Whether somebody keeps moving the stream: then we give in.
    [[nodiscard]] bool isContested() const { return moves_.size() >= movesOfAProgram; }
    /// Restores the user's choice: the session manager moves the stream to its own device.
    void restoreTarget();
    /// Call for every change of this stream's metadata.
    void metadataChanged(const std::string& key, const std::string& value);
    /// The session manager has lost its state: write again.
    void sessionManagerForgot();

    static constexpr std::chrono::milliseconds rewriteInterval{300};

private:
    // More than anybody would move a stream by hand in that time.
    static constexpr std::size_t movesOfAProgram = 3;
    static constexpr std::chrono::seconds movesWithin{5};

    void write(const char* key, const std::optional<std::string>& value);
    void rememberUsersNode();
    [[nodiscard]] std::optional<GraphID> usersNode() const;

    GraphConnection& connection_;
    GraphID id_;
    GraphSerial serial_;
    ChosenTarget chosen_;
    std::deque<std::chrono::steady_clock::time_point> moves_;  // The recent times it was moved away.
    std::string rememberedNode_;  // The value last written by `rememberUsersNode`.
    std::deque<std::pair<std::string, std::string>> ownWrites_;  // Not yet echoed by the server.
    std::chrono::steady_clock::time_point lastWrite_{};
};

}  // namespace fadeloom
