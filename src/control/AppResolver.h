// SPDX-License-Identifier: MIT
// Finds the application, in the user's sense, that an audio process belongs to.
//
// A browser plays through helpers, a game through a launcher's child, a desktop through services. The user knows the
// browser and the launcher, but not the services.
#pragma once

#include "platform/Workspace.h"

#include <optional>
#include <span>
#include <string_view>

namespace fadeloom {

/// The candidate that `id` equals or extends by "." and more: the longest one, and of equal ones the first. nullopt if
/// there is none, and for an empty `id`.
[[nodiscard]] std::optional<std::string_view> bestPrefixMatch(
    std::string_view id, std::span<const std::string_view> candidates);

/// Thread: main.
class AppResolver {
public:
    explicit AppResolver(const Workspace& workspace)
        : workspace_(workspace)
    {
    }

    /// The owner of the process: itself, the process responsible for it, or the one of `runningApps` whose bundle
    /// identifier its own extends, whichever first is an application that the user sees. nullopt if none is.
    [[nodiscard]] std::optional<RunningApplication> owningApp(
        ProcessID pid, std::string_view bundleID, std::span<const RunningApplication> runningApps) const;

private:
    [[nodiscard]] bool isUserApp(const RunningApplication& app) const;
    [[nodiscard]] std::optional<RunningApplication> userAppOf(ProcessID pid) const;
    [[nodiscard]] std::optional<RunningApplication> appExtendedBy(
        std::string_view bundleID, std::span<const RunningApplication> runningApps) const;

    const Workspace& workspace_;
};

}  // namespace fadeloom
