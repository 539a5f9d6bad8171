// SPDX-License-Identifier: MIT
#include "ctl/XFocus.h"

#include <dlfcn.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace fadeloom::ctl {
namespace {

/// The library, loaded on demand: most requests need no window, and key repeat makes startup time matter.
class Xcb {
public:
    Xcb()
    {
        load(connect, "xcb_connect");
        load(disconnect, "xcb_disconnect");
        load(hasError, "xcb_connection_has_error");
        load(setup, "xcb_get_setup");
        load(roots, "xcb_setup_roots_iterator");
        load(internAtom, "xcb_intern_atom");
        load(internAtomReply, "xcb_intern_atom_reply");
        load(getProperty, "xcb_get_property");
        load(getPropertyReply, "xcb_get_property_reply");
        load(value, "xcb_get_property_value");
        load(valueLength, "xcb_get_property_value_length");
    }

    bool isComplete = true;
    decltype(&xcb_connect) connect = nullptr;
    decltype(&xcb_disconnect) disconnect = nullptr;
    decltype(&xcb_connection_has_error) hasError = nullptr;
    decltype(&xcb_get_setup) setup = nullptr;
    decltype(&xcb_setup_roots_iterator) roots = nullptr;
    decltype(&xcb_intern_atom) internAtom = nullptr;
    decltype(&xcb_intern_atom_reply) internAtomReply = nullptr;
    decltype(&xcb_get_property) getProperty = nullptr;
    decltype(&xcb_get_property_reply) getPropertyReply = nullptr;
    decltype(&xcb_get_property_value) value = nullptr;
    decltype(&xcb_get_property_value_length) valueLength = nullptr;

private:
    template <typename Function>
    void load(Function& function, const char* name)
    {
        if (library_ != nullptr)
            function = reinterpret_cast<Function>(dlsym(library_, name));
        isComplete = isComplete && function != nullptr;
    }

    void* const library_ = dlopen("libxcb.so.1", RTLD_LAZY | RTLD_LOCAL);  // Never unloaded.
};

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using ReplyOf = std::unique_ptr<Reply, Free>;

/// The first 32 bits of a window's property; nullopt if it is not set.
std::optional<std::uint32_t> property(
    const Xcb& xcb, xcb_connection_t* connection, xcb_window_t window, std::string_view name, xcb_atom_t type)
{
    const auto length = static_cast<std::uint16_t>(name.size());
    const ReplyOf<xcb_intern_atom_reply_t> atom(
        xcb.internAtomReply(connection, xcb.internAtom(connection, 1, length, name.data()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return std::nullopt;
    const ReplyOf<xcb_get_property_reply_t> reply(xcb.getPropertyReply(
        connection, xcb.getProperty(connection, 0, window, atom->atom, type, 0, 1), nullptr));
    std::uint32_t number = 0;
    if (!reply || xcb.valueLength(reply.get()) < static_cast<int>(sizeof number))
        return std::nullopt;
    std::memcpy(&number, xcb.value(reply.get()), sizeof number);
    return number;
}

}  // namespace

std::optional<Focus> focusOfX()
{
    const Xcb xcb;
    if (!xcb.isComplete)
        return std::nullopt;
    int screen = 0;
    const std::unique_ptr<xcb_connection_t, decltype(xcb.disconnect)> connection(
        xcb.connect(nullptr, &screen), xcb.disconnect);
    if (xcb.hasError(connection.get()) != 0)
        return std::nullopt;
    const auto root = xcb.roots(xcb.setup(connection.get())).data->root;
    const auto window = property(xcb, connection.get(), root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW);
    if (!window)
        return std::nullopt;
    const auto pid = *window == XCB_WINDOW_NONE
        ? std::nullopt
        : property(xcb, connection.get(), *window, "_NET_WM_PID", XCB_ATOM_CARDINAL);
    return pid ? static_cast<Focus>(*pid) : 0;
}

}  // namespace fadeloom::ctl
