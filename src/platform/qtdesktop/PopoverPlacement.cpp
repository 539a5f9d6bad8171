// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/PopoverPlacement.h"

#include <algorithm>
#include <array>

namespace fadeloom {
namespace {

constexpr int thickestBar = 100;
constexpr int thinnestBar = 32;

int fitted(int wanted, int size, int first, int length)
{
    return std::max(first + panelGap, std::min(wanted, first + length - size - panelGap));
}

/// The space that bars take at each edge of the screen.
std::array<int, 4> bars(const ScreenArea& screen)
{
    return {screen.free.top() - screen.geometry.top(), screen.geometry.bottom() - screen.free.bottom(),
        screen.free.left() - screen.geometry.left(), screen.geometry.right() - screen.free.right()};
}

/// The distance to each edge.
std::array<int, 4> distances(QPoint place, const QRect& screen)
{
    return {place.y() - screen.top(), screen.bottom() - place.y(), place.x() - screen.left(),
        screen.right() - place.x()};
}

ScreenEdge edgeOf(QPoint icon, const ScreenArea& screen)
{
    auto far = distances(icon, screen.geometry);
    const auto taken = bars(screen);
    // In a corner an icon is close to two edges: the one with the bar counts.
    for (std::size_t edge = 0; edge < far.size(); ++edge)
        far[edge] = far[edge] < taken[edge] ? far[edge] - thickestBar : far[edge];
    return static_cast<ScreenEdge>(std::ranges::min_element(far) - far.begin());
}

/// The corner at the end of a bar, where the icons are.
QPoint cornerAt(ScreenEdge edge, const QRect& free)
{
    switch (edge) {
    case ScreenEdge::bottom:
    case ScreenEdge::right:
        return free.bottomRight();
    case ScreenEdge::left:
        return free.bottomLeft();
    case ScreenEdge::top:
        break;
    }
    return free.topRight();
}

QPoint beside(const QRect& icon, ScreenEdge edge, QSize panel, const QRect& free)
{
    const int alongX = icon.center().x() - panel.width() / 2;
    const int alongY = icon.center().y() - panel.height() / 2;
    switch (edge) {
    case ScreenEdge::bottom:
        return {alongX, std::min(icon.top(), free.bottom() + 1) - panelGap - panel.height()};
    case ScreenEdge::left:
        return {std::max(icon.right() + 1, free.left()) + panelGap, alongY};
    case ScreenEdge::right:
        return {std::min(icon.left(), free.right() + 1) - panelGap - panel.width(), alongY};
    case ScreenEdge::top:
        break;
    }
    return {alongX, std::max(icon.bottom() + 1, free.top()) + panelGap};
}

QPoint inside(QPoint wanted, QSize panel, const QRect& free)
{
    return {fitted(wanted.x(), panel.width(), free.left(), free.width()),
        fitted(wanted.y(), panel.height(), free.top(), free.height())};
}

std::size_t screenOf(QPoint icon, const std::vector<ScreenArea>& screens)
{
    const auto found = std::ranges::find_if(
        screens, [&](const ScreenArea& screen) { return screen.geometry.contains(icon); });
    return found == screens.end() ? 0 : static_cast<std::size_t>(found - screens.begin());
}

}  // namespace

std::optional<QRect> iconPlace(QPoint told, const std::vector<ScreenArea>& screens)
{
    if (told.x() < thinnestBar && told.y() < thinnestBar)
        return std::nullopt;
    for (const auto& screen : screens) {
        const auto corner = screen.geometry.topLeft();
        if (!QRect(corner, screen.geometry.size() * screen.ratio).contains(told))
            continue;
        const QPoint place = corner + (told - corner) / screen.ratio;
        return isAtEdge(place, screen) ? std::optional(QRect(place, QSize(1, 1))) : std::nullopt;
    }
    return std::nullopt;
}

bool isAtEdge(QPoint place, const ScreenArea& screen)
{
    return std::ranges::min(distances(place, screen.geometry)) < thickestBar;
}

QRect availablePart(const QRect& screen, QSize free, ScreenEdge edge)
{
    auto result = screen;
    const int across = screen.width() - free.width();
    const int down = screen.height() - free.height();
    switch (edge) {
    case ScreenEdge::top:
        result.setTop(screen.top() + down);
        break;
    case ScreenEdge::bottom:
        result.setBottom(screen.bottom() - down);
        break;
    case ScreenEdge::left:
        result.setLeft(screen.left() + across);
        break;
    case ScreenEdge::right:
        result.setRight(screen.right() - across);
        break;
    }
    return result;
}

PopoverPlacement placePopover(
    const std::optional<QRect>& icon, QSize panel, const std::vector<ScreenArea>& screens)
{
    if (!icon) {
        const auto& screen = screens.front();
        const auto taken = bars(screen);
        const auto edge = static_cast<ScreenEdge>(std::ranges::max_element(taken) - taken.begin());
        return {0, edge, inside(cornerAt(edge, screen.free), panel, screen.free)};
    }
    const auto number = screenOf(icon->center(), screens);
    const auto& screen = screens[number];
    const auto edge = edgeOf(icon->center(), screen);
    return {number, edge, inside(beside(*icon, edge, panel, screen.free), panel, screen.free)};
}

QPoint placeWindow(const std::optional<QPoint>& left, QSize window, const std::vector<ScreenArea>& screens)
{
    constexpr int grip = 60;  // The part of a window that must be visible to grab it.
    const auto isSeen = [&](const ScreenArea& screen) {
        return screen.free.contains(QRect(*left, QSize(std::min(grip, window.width()), grip)));
    };
    if (left && std::ranges::any_of(screens, isSeen))
        return *left;
    auto middle = QRect(QPoint(0, 0), window);
    middle.moveCenter(screens.front().free.center());
    return middle.topLeft();
}

}  // namespace fadeloom
