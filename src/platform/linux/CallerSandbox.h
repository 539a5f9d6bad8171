// SPDX-License-Identifier: MIT
// Whether a process that asks us for something is kept in a sandbox.
#pragma once

#include <filesystem>

#include <sys/types.h>

namespace fadeloom {

/// Whether it runs in a Flatpak or a Snap; a process that cannot be looked at counts as sandboxed. `processes`: where
/// the system shows its processes. Thread: any.
[[nodiscard]] bool isSandboxed(pid_t process, const std::filesystem::path& processes = "/proc");

}  // namespace fadeloom
