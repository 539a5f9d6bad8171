// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/LayerSurface.h"

#include "platform/qtdesktop/LayerProtocols.h"

#include <utility>

namespace fadeloom {
namespace {

constexpr std::uint32_t exclusiveKeyboard = 1;
constexpr std::uint32_t keyboardOnDemand = 2;
constexpr std::uint32_t versionWithDemand = 4;

std::uint32_t anchorOf(Qt::Edges edges)
{
    std::uint32_t anchor = 0;
    anchor |= edges.testFlag(Qt::TopEdge) ? 1U : 0U;
    anchor |= edges.testFlag(Qt::BottomEdge) ? 2U : 0U;
    anchor |= edges.testFlag(Qt::LeftEdge) ? 4U : 0U;
    anchor |= edges.testFlag(Qt::RightEdge) ? 8U : 0U;
    return anchor;
}

}  // namespace

struct LayerSurface::Listeners {
    static void configure(void* self, zwlr_layer_surface_v1* layer, std::uint32_t serial, std::uint32_t width,
        std::uint32_t height)
    {
        zwlr_layer_surface_v1_ack_configure(layer, serial);
        static_cast<LayerSurface*>(self)->configured_({static_cast<int>(width), static_cast<int>(height)});
    }
    static void closed(void* self, zwlr_layer_surface_v1* /*layer*/)
    {
        static_cast<LayerSurface*>(self)->closed_();
    }
    static constexpr zwlr_layer_surface_v1_listener layer = {.configure = configure, .closed = closed};
};

LayerSurface::LayerSurface(LayerShell& shell, wl_surface* surface, wl_output* output, const Place& place,
    std::function<void(QSize)> configured, std::function<void()> closed)
    : shell_(shell)
    , surface_(surface)
    , layer_(zwlr_layer_shell_v1_get_layer_surface(
          shell.shell_, surface, output, static_cast<std::uint32_t>(place.layer), "fadeloom"))
    , configured_(std::move(configured))
    , closed_(std::move(closed))
{
    zwlr_layer_surface_v1_add_listener(layer_, &Listeners::layer, this);
    tell(place);
    wl_surface_commit(surface_);
}

LayerSurface::~LayerSurface()
{
    zwlr_layer_surface_v1_destroy(layer_);
}

void LayerSurface::move(const Place& place)
{
    if (shell_.version_ >= ZWLR_LAYER_SURFACE_V1_SET_LAYER_SINCE_VERSION)
        zwlr_layer_surface_v1_set_layer(layer_, static_cast<std::uint32_t>(place.layer));
    tell(place);
    wl_surface_commit(surface_);
}

void LayerSurface::tell(const Place& place)
{
    const auto& margins = place.margins;
    const auto wanted = shell_.version_ >= versionWithDemand ? keyboardOnDemand : exclusiveKeyboard;
    zwlr_layer_surface_v1_set_size(layer_, static_cast<std::uint32_t>(place.size.width()),
        static_cast<std::uint32_t>(place.size.height()));
    zwlr_layer_surface_v1_set_anchor(layer_, anchorOf(place.edges));
    zwlr_layer_surface_v1_set_margin(
        layer_, margins.top(), margins.right(), margins.bottom(), margins.left());
    zwlr_layer_surface_v1_set_exclusive_zone(layer_, place.area == Area::all ? -1 : 0);
    zwlr_layer_surface_v1_set_keyboard_interactivity(layer_, place.keyboard == Keyboard::always ? wanted : 0);
}

}  // namespace fadeloom
