// SPDX-License-Identifier: MIT
// Our own links. Given the complete wanted set, creates what is missing and drops the rest.
//
// Links belong to our client: they disappear with it.
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
    bool isPassive = false;  // A passive link does not keep its device from suspending.

    friend auto operator<=>(const WantedLink&, const WantedLink&) = default;
};

/// Thread: the graph thread or one that holds its lock.
class OwnLinks {
public:
    /// `changed` is called when a link's state has advanced.
    explicit OwnLinks(std::function<void()> changed);
    ~OwnLinks();
    OwnLinks(const OwnLinks&) = delete;
    OwnLinks& operator=(const OwnLinks&) = delete;

    /// Returns whether a link was refused and must be retried: call again after `retryDelay`.
    bool reconcile(pw_core* core, const std::set<WantedLink>& wanted);
    /// Whether a link between these ports is one of ours.
    [[nodiscard]] bool has(GraphID outputPort, GraphID inputPort) const;
    /// Whether the link is established and carries audio.
    [[nodiscard]] bool isActive(const WantedLink& link) const;
    /// Drops all links between these nodes immediately.
    void drop(GraphID outputNode, GraphID inputNode);
    /// Drops everything; the server is gone or going.
    void clear();

    static constexpr std::chrono::milliseconds retryDelay{100};

private:
    class Proxy;

    std::function<void()> changed_;
    std::map<WantedLink, std::unique_ptr<Proxy>> links_;
};

}  // namespace fadeloom
