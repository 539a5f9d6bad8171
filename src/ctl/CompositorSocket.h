// SPDX-License-Identifier: MIT
// Wayland compositors that report the focused window through an IPC socket.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace fadeloom::ctl {

/// The process of the focused window, 0 for none; nullopt if the desktop does not reply.
using Focus = pid_t;

/// sway-ipc(7). `socket`: its path.
[[nodiscard]] std::optional<Focus> focusOfSway(const std::string& socket);
/// niri's requests and replies, line-delimited JSON.
[[nodiscard]] std::optional<Focus> focusOfNiri(const std::string& socket);

}  // namespace fadeloom::ctl
