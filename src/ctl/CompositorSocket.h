// SPDX-License-Identifier: MIT
// Wayland compositors that tell through a socket of theirs which window is in front.
#pragma once

#include <optional>
#include <string>

#include <sys/types.h>

namespace fadeloom::ctl {

/// The process of the window in front, 0 for none; absent when the desktop does not answer.
using Focus = pid_t;

/// sway-ipc(7). `socket`: its path.
[[nodiscard]] std::optional<Focus> focusOfSway(const std::string& socket);
/// niri's requests and replies, JSON in lines.
[[nodiscard]] std::optional<Focus> focusOfNiri(const std::string& socket);

}  // namespace fadeloom::ctl
