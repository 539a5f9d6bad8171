// SPDX-License-Identifier: MIT
// The compositor's layer shell: surfaces for desktop components, freely placed and above all windows.
#pragma once

#include <QMetaObject>
#include <QPointF>
#include <QWindow>

#include <cstdint>
#include <functional>
#include <memory>

struct wl_buffer;
struct wl_compositor;
struct wl_display;
struct wl_event_queue;
struct wl_output;
struct wl_pointer;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct wl_surface;
struct wp_viewport;
struct wp_viewporter;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;

namespace fadeloom {

/// On Qt's own connection to the compositor. Events are dispatched on the main thread. Thread: main.
class LayerShell {
public:
    /// Whether this session's compositor supports it. May be called before there is a QApplication.
    [[nodiscard]] static bool isOffered();
    /// Null if this QApplication's windows are not Wayland's, or the compositor does not support it.
    [[nodiscard]] static std::unique_ptr<LayerShell> create();
    LayerShell(const LayerShell&) = delete;
    LayerShell& operator=(const LayerShell&) = delete;
    ~LayerShell();

    /// The pointer position on one of our surfaces; nullopt over anything else.
    struct Pointer {
        wl_surface* surface = nullptr;
        QPointF place;
    };
    [[nodiscard]] const Pointer& pointer() const { return pointer_; }
    /// Called when a button is released over a surface.
    void whenReleased(std::function<void(wl_surface*)> released) { released_ = std::move(released); }

    /// Flushes all requests to the compositor, and dispatches its events.
    void roundtrip();

    [[nodiscard]] static wl_output* outputOf(QScreen& screen);
    /// Creates the window's surface if it has none yet.
    [[nodiscard]] static wl_surface* surfaceOf(QWindow& window);

private:
    friend class ClickCatcher;
    friend class LayerSurface;
    struct Listeners;

    explicit LayerShell(wl_display* display);
    void listen();
    void makeClearBuffer();
    void dispatch();

    wl_display* const display_;
    wl_event_queue* queue_;
    wl_registry* registry_ = nullptr;
    zwlr_layer_shell_v1* shell_ = nullptr;
    wl_compositor* compositor_ = nullptr;
    wl_shm* shm_ = nullptr;
    wl_seat* seat_ = nullptr;
    wl_pointer* wlPointer_ = nullptr;
    wp_viewporter* viewporter_ = nullptr;
    wl_buffer* clear_ = nullptr;  // One transparent pixel.
    std::uint32_t version_ = 0;  // Of the layer shell.
    Pointer pointer_;
    std::function<void(wl_surface*)> released_ = [](wl_surface*) { };
    QMetaObject::Connection turns_;
};

}  // namespace fadeloom
