// SPDX-License-Identifier: MIT
// Where to place the panel.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <optional>
#include <vector>

namespace fadeloom {

/// The distance to the bar, and to the edges of the screen, in logical pixels, like everything here.
constexpr int panelGap = 6;

/// A screen: its geometry, and the part that bars leave to windows, which is all of it if unknown. `ratio`: device
/// pixels per logical pixel; the upper left corner of `geometry` is in device pixels already.
struct ScreenArea {
    QRect geometry;
    QRect free;
    qreal ratio = 1;
};

enum class ScreenEdge { top, bottom, left, right };

struct PopoverPlacement {
    std::size_t screen = 0;
    ScreenEdge edge = ScreenEdge::top;  // The edge with the icon's bar.
    QPoint position;  // The upper left corner of the panel.

    bool operator==(const PopoverPlacement&) const = default;
};

/// The position of an icon reported as `told` by a bar, in device pixels. nullopt if it is implausible: some bars count
/// from their own corner, or report zeros.
[[nodiscard]] std::optional<QRect> iconPlace(QPoint told, const std::vector<ScreenArea>& screens);

/// Whether a bar can be there, at an edge of the screen.
[[nodiscard]] bool isAtEdge(QPoint place, const ScreenArea& screen);

/// The part of `screen` available to windows, if only its size and the bar's edge are known.
[[nodiscard]] QRect availablePart(const QRect& screen, QSize free, ScreenEdge edge);

/// Places a panel of this size beside its icon: on the icon's screen, clear of the bar, centred on the icon along the
/// bar, and entirely within the available area. Without an icon: at the end of the first screen's bar; without a bar in
/// the upper right corner. Requires at least one screen.
[[nodiscard]] PopoverPlacement placePopover(
    const std::optional<QRect>& icon, QSize panel, const std::vector<ScreenArea>& screens);

/// Places an ordinary window of this size: where it was left, if that is still on a screen, else in the middle of the
/// first screen.
[[nodiscard]] QPoint placeWindow(
    const std::optional<QPoint>& left, QSize window, const std::vector<ScreenArea>& screens);

}  // namespace fadeloom
