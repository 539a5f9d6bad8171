// SPDX-License-Identifier: MIT
// The links that we make ourselves. Said whole what is wanted, it makes what is missing and drops the rest.
//
// Links belong to our client: they go with it.
#pragma once

#include "platform/pipewire/Graph.h"

#include <chrono>
#include <compare>
#include <functional>
#include <map>
#include <memory>
#include <set>

struct pw_core;

namespace fadeloom {

struct WantedLink {
    GraphID outputNode = 0;
    GraphID outputPort = 0;
    GraphID inputNode = 0;
    GraphID inputPort = 0;
    bool isPassive = false;  // A passive link does not keep its device awake.

    friend auto operator<=>(const WantedLink&, const WantedLink&) = default;
};

/// Thread: the graph thread or one that holds its lock.
class OwnLinks {
public:
    /// `changed` is called when a link has come a step further.
    explicit OwnLinks(std::function<void()> changed);
    ~OwnLinks();
    OwnLinks(const OwnLinks&) = delete;
    OwnLinks& operator=(const OwnLinks&) = delete;

    /// Returns whether a link was refused and will be tried again: call once more after `retryDelay`.
    bool reconcile(pw_core* core, const std::set<WantedLink>& wanted);
    /// Whether a link between these ports is one of ours.
    [[nodiscard]] bool has(GraphID outputPort, GraphID inputPort) const;
    /// Whether the link is set up and carries what it is given.
    [[nodiscard]] bool isActive(const WantedLink& link) const;
    /// Drops every link between these nodes at once.
    void drop(GraphID outputNode, GraphID inputNode);
    /// Forgets everything; the server has gone or goes.
    void clear();

    static constexpr std::chrono::milliseconds retryDelay{100};

private:
    class Proxy;

    std::function<void()> changed_;
    std::map<WantedLink, std::unique_ptr<Proxy>> links_;
};

}  // namespace fadeloom
