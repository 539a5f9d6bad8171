// SPDX-License-Identifier: MIT
// A layer-shell surface with a fixed position on the desktop.
#pragma once

#include "platform/qtdesktop/LayerShell.h"

#include <QMargins>
#include <QSize>

namespace fadeloom {

/// Assigns the role to a surface, which must outlive it. Thread: main.
class LayerSurface {
public:
    enum class Layer : std::uint32_t { behindWindows = 1, beforeAll = 3 };
    /// The part of the screen reserved by bars.
    enum class Area { withoutReserved, all };
    enum class Keyboard { never, always };
    struct Place {
        Layer layer = Layer::beforeAll;
        Area area = Area::withoutReserved;
        // The edges it is anchored to, with these margins; anchored to opposite ones it is stretched.
        Qt::Edges edges;
        QMargins margins;
        QSize size;  // Zero where it is stretched.
        Keyboard keyboard = Keyboard::never;
    };

    /// `output` may be null for any. `configured`: called with the required size, also before the first frame; `closed`
    /// when the compositor closes the surface, for instance with its screen.
    LayerSurface(LayerShell& shell, wl_surface* surface, wl_output* output, const Place& place,
        std::function<void(QSize)> configured, std::function<void()> closed);
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;
    ~LayerSurface();

    /// Moves it; takes effect with the surface's next frame, or immediately for a surface that has one.
    void move(const Place& place);

private:
    struct Listeners;

    void tell(const Place& place);

    LayerShell& shell_;
    wl_surface* const surface_;
    zwlr_layer_surface_v1* layer_;
    std::function<void(QSize)> configured_;
    std::function<void()> closed_;
};

}  // namespace fadeloom
