// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/WindowLists.h"

#include <QGuiApplication>
#include <QWindow>
#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace fadeloom {
namespace {

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name)
{
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype([](void* reply) { std::free(reply); })> reply(
        xcb_intern_atom_reply(connection,
            xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace

void hideFromWindowLists(QWindow& window)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb") || window.isVisible())
        return;
    auto* const connection = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const std::array states{
        atomOf(connection, "_NET_WM_STATE_SKIP_TASKBAR"), atomOf(connection, "_NET_WM_STATE_SKIP_PAGER")};
    // Qt adds its own to the existing ones.
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window.winId()),
        atomOf(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(), states.data());
}

}  // namespace fadeloom
