// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/LayerShell.h"

#include "platform/qtdesktop/LayerProtocols.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QScreen>
#include <qpa/qplatformnativeinterface.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>

namespace fadeloom {
namespace {

constexpr std::string_view layerShellName = "zwlr_layer_shell_v1";

void noted(void* isThere, wl_registry* /*registry*/, std::uint32_t /*name*/, const char* interface,
    std::uint32_t /*version*/)
{
    if (interface == layerShellName)
        *static_cast<bool*>(isThere) = true;
}

QPlatformNativeInterface& native()
{
    return *QGuiApplication::platformNativeInterface();
}

}  // namespace

struct LayerShell::Listeners {
    template <typename... Arguments>
    static void ignored(Arguments... /*arguments*/)
    {
    }

    static void entered(void* self, wl_pointer* /*pointer*/, std::uint32_t /*serial*/, wl_surface* surface,
        wl_fixed_t x, wl_fixed_t y)
    {
        static_cast<LayerShell*>(self)->pointer_ = {surface, {wl_fixed_to_double(x), wl_fixed_to_double(y)}};
    }
    static void left(void* self, wl_pointer* /*pointer*/, std::uint32_t /*serial*/, wl_surface* /*surface*/)
    {
        static_cast<LayerShell*>(self)->pointer_ = {};
    }
    static void button(void* self, wl_pointer* /*pointer*/, std::uint32_t /*serial*/, std::uint32_t /*time*/,
        std::uint32_t /*button*/, std::uint32_t state)
    {
        auto& shell = *static_cast<LayerShell*>(self);
        if (state == WL_POINTER_BUTTON_STATE_RELEASED && shell.pointer_.surface != nullptr)
            shell.released_(shell.pointer_.surface);
    }
    static constexpr wl_pointer_listener pointer = [] {
        wl_pointer_listener listener{};
        listener.enter = entered;
        listener.leave = left;
        listener.motion = ignored<void*, wl_pointer*, std::uint32_t, wl_fixed_t, wl_fixed_t>;
        listener.button = button;
        listener.axis = ignored<void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t>;
        return listener;
    }();

    // Pointers may be added and removed.
    static void capabilities(void* self, wl_seat* seat, std::uint32_t all)
    {
        auto& shell = *static_cast<LayerShell*>(self);
        const bool hasPointer = (all & WL_SEAT_CAPABILITY_POINTER) != 0;
        if (hasPointer && shell.wlPointer_ == nullptr) {
            shell.wlPointer_ = wl_seat_get_pointer(seat);
            wl_pointer_add_listener(shell.wlPointer_, &pointer, self);
        } else if (!hasPointer && shell.wlPointer_ != nullptr) {
            wl_pointer_destroy(shell.wlPointer_);
            shell.wlPointer_ = nullptr;
            shell.pointer_ = {};
        }
    }
    static constexpr wl_seat_listener seat = [] {
        wl_seat_listener listener{};
        listener.capabilities = capabilities;
        return listener;
    }();

    static void offered(
        void* self, wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t version)
    {
        auto& shell = *static_cast<LayerShell*>(self);
        const std::string_view is(interface);
        const auto bind = [&]<typename T>(T*& object, const wl_interface& what, std::uint32_t atMost) {
            object = static_cast<T*>(wl_registry_bind(registry, name, &what, std::min(version, atMost)));
        };
        if (is == layerShellName) {
            shell.version_ = std::min(version, 4U);
            bind(shell.shell_, zwlr_layer_shell_v1_interface, 4);
        } else if (is == "wl_compositor") {
            bind(shell.compositor_, wl_compositor_interface, 1);
        } else if (is == "wl_shm") {
            bind(shell.shm_, wl_shm_interface, 1);
        } else if (is == "wp_viewporter") {
            bind(shell.viewporter_, wp_viewporter_interface, 1);
        } else if (is == "wl_seat" && shell.seat_ == nullptr) {
            bind(shell.seat_, wl_seat_interface, 1);  // Later versions have events that are not needed here.
            wl_seat_add_listener(shell.seat_, &seat, self);
        }
    }
    static constexpr wl_registry_listener registry = {
        .global = offered,
        .global_remove = ignored<void*, wl_registry*, std::uint32_t>,
    };
};

bool LayerShell::isOffered()
{
    // Without this directory there is no compositor, and the library would print an error.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return false;
    auto* const display = wl_display_connect(nullptr);
    if (display == nullptr)
        return false;
    bool isThere = false;
    constexpr wl_registry_listener listener = {
        .global = noted,
        .global_remove = [](void*, wl_registry*, std::uint32_t) { },
    };
    auto* const registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &listener, &isThere);
    wl_display_roundtrip(display);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return isThere;
}

std::unique_ptr<LayerShell> LayerShell::create()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return nullptr;
    auto* const display = static_cast<wl_display*>(native().nativeResourceForIntegration("wl_display"));
    if (display == nullptr)
        return nullptr;
    std::unique_ptr<LayerShell> result(new LayerShell(display));
    result->listen();
    const bool isComplete = result->shell_ != nullptr && result->compositor_ != nullptr
        && result->shm_ != nullptr && result->viewporter_ != nullptr;
    if (!isComplete)
        return nullptr;
    result->makeClearBuffer();
    return result;
}

LayerShell::LayerShell(wl_display* display)
    : display_(display)
    , queue_(wl_display_create_queue(display))
{
}

LayerShell::~LayerShell()
{
    QObject::disconnect(turns_);
    const auto end = [](auto* object, auto destroy) {
        if (object != nullptr)
            destroy(object);
    };
    end(clear_, wl_buffer_destroy);
    end(wlPointer_, wl_pointer_destroy);
    end(seat_, wl_seat_destroy);
    end(viewporter_, wp_viewporter_destroy);
    end(shm_, wl_shm_destroy);
    end(compositor_, wl_compositor_destroy);
    if (shell_ != nullptr && version_ >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(shell_);
    else
        end(reinterpret_cast<wl_proxy*>(shell_), wl_proxy_destroy);
    end(registry_, wl_registry_destroy);
    wl_event_queue_destroy(queue_);
}

void LayerShell::listen()
{
    // Objects created through the wrapper report to our queue, even if Qt reads the connection.
    auto* const wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(display_));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue_);
    registry_ = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(registry_, &Listeners::registry, this);
    roundtrip();
    roundtrip();  // Receives the seat's capabilities.
    turns_ = QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [this] { dispatch(); });
}

void LayerShell::makeClearBuffer()
{
    constexpr int bytes = 4;
    const int file = memfd_create("clear", MFD_CLOEXEC);
    if (file < 0)
        return;
    if (ftruncate(file, bytes) == 0) {
        auto* const pool = wl_shm_create_pool(shm_, file, bytes);
        clear_ = wl_shm_pool_create_buffer(pool, 0, 1, 1, bytes, WL_SHM_FORMAT_ARGB8888);
        wl_shm_pool_destroy(pool);
    }
    close(file);
}

void LayerShell::dispatch()
{
    wl_display_dispatch_queue_pending(display_, queue_);
}

void LayerShell::roundtrip()
{
    wl_display_roundtrip_queue(display_, queue_);
}

wl_output* LayerShell::outputOf(QScreen& screen)
{
    return static_cast<wl_output*>(native().nativeResourceForScreen("output", &screen));
}

wl_surface* LayerShell::surfaceOf(QWindow& window)
{
    window.create();
    return static_cast<wl_surface*>(native().nativeResourceForWindow("surface", &window));
}

}  // namespace fadeloom
