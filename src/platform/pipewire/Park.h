// SPDX-License-Identifier: MIT
// The sink to which the session manager routes the streams of tapped applications.
//
// Only the session manager treats it as a sink, and it discards its input. Its purpose is that the session manager
// itself moves an application off its device, keeps it off, and moves it back as soon as the park is gone: if this
// program is killed, every application becomes audible again without our help.
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
    /// `changed` is called when the node's state has advanced.
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
