// SPDX-License-Identifier: MIT
// Whether a calling process is sandboxed.
#pragma once

#include <sys/types.h>

#include <filesystem>

namespace fadeloom {

/// Whether it runs in a Flatpak or a Snap; a process that cannot be inspected counts as sandboxed. `processes`: the
/// process file system. Thread: any.
[[nodiscard]] bool isSandboxed(pid_t process, const std::filesystem::path& processes = "/proc");

}  // namespace fadeloom
