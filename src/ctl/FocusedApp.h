// SPDX-License-Identifier: MIT
// The window in front, asked of whatever desktop this is.
//
// sway, and wlroots desktops that speak its protocol, and niri are asked through their sockets; X11 by the properties of
// the root window. KWin and GNOME on Wayland tell a program of windows of X11 alone.
#pragma once

#include <expected>
#include <string>

#include <sys/types.h>

namespace fadeloom::ctl {

/// The process of the focused window. The error is a sentence for the user, in English.
[[nodiscard]] std::expected<pid_t, std::string> focusedProcess();

}  // namespace fadeloom::ctl
