// SPDX-License-Identifier: MIT
// What a Wayland compositor offers to the parts of a desktop: windows that stand where they want, above all others.
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

/// On Qt's own connection to the compositor. Whatever it announces is handled in the main thread's turns. Thread: main.
class LayerShell {
public:
    /// Whether the compositor of this session has one. May be asked before there is a QApplication.
    [[nodiscard]] static bool isOffered();
    /// Null where the windows of this QApplication are not Wayland's, or the compositor has none.
    [[nodiscard]] static std::unique_ptr<LayerShell> create();
    LayerShell(const LayerShell&) = delete;
    LayerShell& operator=(const LayerShell&) = delete;
    ~LayerShell();

    /// Where the pointer is on a surface of ours; null over anything else.
    struct Pointer {
        wl_surface* surface = nullptr;
        QPointF place;
    };
    [[nodiscard]] const Pointer& pointer() const { return pointer_; }
    /// Called when a button is let go over a surface.
    void whenReleased(std::function<void(wl_surface*)> released) { released_ = std::move(released); }

    /// Lets the compositor see everything so far, and takes its answers.
    void roundtrip();

    [[nodiscard]] static wl_output* outputOf(QScreen& screen);
    /// Makes the window's surface where it has none yet.
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
