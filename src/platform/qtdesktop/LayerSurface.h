// SPDX-License-Identifier: MIT
// A surface that stands at a place of its own on the desktop.
#pragma once

#include "platform/qtdesktop/LayerShell.h"

#include <QMargins>
#include <QSize>

namespace fadeloom {

/// Gives its place to a surface, which must outlive it. Thread: main.
class LayerSurface {
public:
    enum class Layer : std::uint32_t { behindWindows = 1, beforeAll = 3 };
    /// What bars take for themselves is reserved.
    enum class Area { withoutReserved, all };
    enum class Keyboard { never, always };
    struct Place {
        Layer layer = Layer::beforeAll;
        Area area = Area::withoutReserved;
        Qt::Edges edges;  // That it is held at, with these margins; at opposite ones it is stretched.
        QMargins margins;
        QSize size;  // Zero where it is stretched.
        Keyboard keyboard = Keyboard::never;
    };

    /// `output` may be null for any. `configured`: called with the size that it is to have, before the first picture too;
    /// `closed` when the compositor takes the place away, as with its screen.
    LayerSurface(LayerShell& shell, wl_surface* surface, wl_output* output, const Place& place,
        std::function<void(QSize)> configured, std::function<void()> closed);
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;
    ~LayerSurface();

    /// Moves it; seen with the surface's next picture, or at once for a surface that has one.
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
