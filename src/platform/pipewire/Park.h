// SPDX-License-Identifier: MIT
// The place where the session manager puts the streams of tapped applications.
//
// It is a sink to the session manager and to nobody else, and throws away what it gets. Its use is that the session
// manager itself takes an application off its device, keeps it off, and puts it back the moment the park is gone: if
// this program is killed, every application is heard again without any help of ours.
#pragma once

#include "platform/pipewire/Graph.h"

#include <functional>
#include <memory>
#include <string>

struct pw_core;
struct pw_stream;
struct spa_hook;

namespace fadeloom {

/// Thread: the graph thread or one that holds its lock.
class Park {
public:
    /// `changed` is called when the node has come a step further.
    Park(pw_core* core, std::string name, std::function<void()> changed);
    ~Park();
    Park(const Park&) = delete;
    Park& operator=(const Park&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    /// The node's id once it is a valid target.
    [[nodiscard]] std::optional<GraphID> nodeID() const;

private:
    static void onProcess(void* self);

    std::string name_;
    std::function<void()> changed_;
    pw_stream* stream_ = nullptr;
    std::unique_ptr<spa_hook> listener_;
};

}  // namespace fadeloom
