// SPDX-License-Identifier: MIT
// One stream that we have taken off its device: its target in the session manager's metadata, and the user's own
// choice, which is kept and put back.
//
// A target is written by the park's *name*. Session managers look a stored target up by serial, fail on the name, and
// so never store anything of ours. The failed look-up makes them forget what the user chose before; writing the
// user's node as "target.node" afterwards is what they remember last.
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
    /// Takes note of the user's choice as it stands now; writes nothing yet.
    ParkedStream(GraphConnection& connection, const GraphNode& stream);

    [[nodiscard]] GraphID id() const { return id_; }
    [[nodiscard]] GraphSerial serial() const { return serial_; }

    /// Sees to it that the session manager keeps the stream on the park. Somebody else's change is taken as the
    /// user's choice and undone, at most once in `rewriteInterval`; returns false when it must be called again then.
    bool keepOn(const std::string& parkName);
    /// What anybody but us has chosen for it.
    [[nodiscard]] const ChosenTarget& chosen() const { return chosen_; }
    /// Whether somebody keeps moving the stream: then it is theirs.
    [[nodiscard]] bool isContested() const { return moves_.size() >= movesOfAProgram; }
    /// Puts the user's choice back: the session manager moves the stream to its own device.
    void giveBack();
    /// To be told of every change of this stream's metadata.
    void metadataChanged(const std::string& key, const std::string& value);
    /// The session manager has forgotten everything: write again.
    void sessionManagerForgot();

    static constexpr std::chrono::milliseconds rewriteInterval{300};

private:
    // Nobody moves a stream by hand that often in that time.
    static constexpr std::size_t movesOfAProgram = 3;
    static constexpr std::chrono::seconds movesWithin{5};

    void write(const char* key, const std::optional<std::string>& value);
    void rememberUsersNode();
    [[nodiscard]] std::optional<GraphID> usersNode() const;

    GraphConnection& connection_;
    GraphID id_;
    GraphSerial serial_;
    ChosenTarget chosen_;
    std::deque<std::chrono::steady_clock::time_point> moves_;  // When it was taken from us, lately.
    std::string rememberedNode_;  // What `rememberUsersNode` wrote last.
    std::deque<std::pair<std::string, std::string>> ownWrites_;  // Not yet echoed by the server.
    std::chrono::steady_clock::time_point lastWrite_{};
};

}  // namespace fadeloom
