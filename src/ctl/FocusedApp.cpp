// SPDX-License-Identifier: MIT
#include "ctl/FocusedApp.h"

#include "ctl/CompositorSocket.h"
#include "ctl/XFocus.h"

#include <cstdlib>

namespace fadeloom::ctl {

namespace {

const char* variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr && *value != '\0' ? value : nullptr;
}

}  // namespace

std::expected<pid_t, std::string> focusedProcess()
{
    std::optional<Focus> focus;
    if (const auto* const socket = variable("SWAYSOCK"))
        focus = focusOfSway(socket);
    if (const auto* const socket = variable("NIRI_SOCKET"); !focus && socket != nullptr)
        focus = focusOfNiri(socket);
    if (!focus && variable("DISPLAY") != nullptr)
        focus = focusOfX();
    if (focus && *focus > 0)
        return *focus;
    if (!focus || variable("WAYLAND_DISPLAY") != nullptr)
        return std::unexpected("this desktop does not tell which application is in front");
    return std::unexpected("no window is in front, or it does not say whose it is");
}

}  // namespace fadeloom::ctl
