// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/Compositing.h"

#include <QGuiApplication>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace fadeloom {
namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using ReplyPtr = std::unique_ptr<Reply, Free>;

// The compositor of an X screen owns the selection named after it. Multiple X screens are obsolete: monitors are parts
// of the first.
bool hasCompositor(xcb_connection_t* connection)
{
    constexpr std::string_view name = "_NET_WM_CM_S0";
    const ReplyPtr<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, name.size(), name.data()), nullptr));
    if (!atom)
        return false;
    const ReplyPtr<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}

}  // namespace

bool isComposited()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;  // Wayland always composites.
    return hasCompositor(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection());
}

}  // namespace fadeloom
