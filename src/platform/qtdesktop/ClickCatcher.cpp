// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/ClickCatcher.h"

#include "platform/qtdesktop/LayerProtocols.h"

#include <utility>

namespace fadeloom {
namespace {

constexpr LayerSurface::Place everywhere{
    .layer = LayerSurface::Layer::beforeAll,
    .area = LayerSurface::Area::all,
    .edges = Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge,
    .margins = {},
    .size = QSize(0, 0),
};

}  // namespace

ClickCatcher::ClickCatcher(LayerShell& shell, QScreen& screen, std::function<void()> closed)
    : shell_(shell)
    , surface_(wl_compositor_create_surface(shell.compositor_))
    , viewport_(wp_viewporter_get_viewport(shell.viewporter_, surface_))
{
    role_.emplace(
        shell, surface_, LayerShell::outputOf(screen), everywhere, [this](QSize size) { show(size); },
        std::move(closed));
}

ClickCatcher::~ClickCatcher()
{
    if (shell_.pointer_.surface == surface_)
        shell_.pointer_ = {};
    role_.reset();
    wp_viewport_destroy(viewport_);
    wl_surface_destroy(surface_);
}

void ClickCatcher::show(QSize size)
{
    wp_viewport_set_destination(viewport_, size.width(), size.height());
    wl_surface_attach(surface_, shell_.clear_, 0, 0);
    wl_surface_damage(surface_, 0, 0, size.width(), size.height());
    wl_surface_commit(surface_);
}

void ClickCatcher::exclude(const QRect& part)
{
    constexpr int beyondAnyScreen = 100'000;
    auto* const region = wl_compositor_create_region(shell_.compositor_);
    wl_region_add(region, 0, 0, beyondAnyScreen, beyondAnyScreen);
    wl_region_subtract(region, part.x(), part.y(), part.width(), part.height());
    wl_surface_set_input_region(surface_, region);
    wl_region_destroy(region);
    wl_surface_commit(surface_);
}

}  // namespace fadeloom
