// SPDX-License-Identifier: MIT
// Finds the focused window on any supported desktop.
//
// sway, wlroots compositors that speak its protocol, and niri through their sockets; X11 through the properties of the
// root window. KWin and GNOME on Wayland expose only X11 windows.
#pragma once

#include <sys/types.h>

#include <expected>
#include <string>

namespace fadeloom::ctl {

/// The process of the focused window. The error is a sentence for the user, in English.
[[nodiscard]] std::expected<pid_t, std::string> focusedProcess();

}  // namespace fadeloom::ctl
