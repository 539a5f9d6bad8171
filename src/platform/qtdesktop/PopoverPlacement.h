// SPDX-License-Identifier: MIT
// Where the panel stands.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <optional>
#include <vector>

namespace fadeloom {

/// What is left free to the bar, and to the edges of the screen, in pixels of the desktop's scale, as everything here.
constexpr int panelGap = 6;

/// A screen: all of it, and the part that bars leave to windows, which is all of it where nobody tells. `ratio`: pixels
/// of the display for one of ours; the upper left corner of `geometry` is in pixels of the display already.
struct ScreenArea {
    QRect geometry;
    QRect free;
    qreal ratio = 1;
};

enum class ScreenEdge { top, bottom, left, right };

struct PopoverPlacement {
    std::size_t screen = 0;
    ScreenEdge edge = ScreenEdge::top;  // At which the bar with the icon is.
    QPoint position;  // The upper left corner of the panel.

    bool operator==(const PopoverPlacement&) const = default;
};

/// The place of an icon of which a bar says that it is at `told`, in pixels of the display. Absent when no icon can be
/// there: some bars count from their own corner, or say nothing but zeros.
[[nodiscard]] std::optional<QRect> iconPlace(QPoint told, const std::vector<ScreenArea>& screens);

/// Whether a bar can be there, at an edge of the screen.
[[nodiscard]] bool isAtEdge(QPoint place, const ScreenArea& screen);

/// The part of `screen` that is left to windows, when all that is known is its size, and the edge of the bar.
[[nodiscard]] QRect freePart(const QRect& screen, QSize free, ScreenEdge edge);

/// A panel of this size beside its icon: on the icon's screen, beyond the bar, in the middle of the icon along the bar,
/// and all of it where windows may be. Without an icon: at the end of the first screen's bar; without a bar in the upper
/// right corner. There is at least one screen.
[[nodiscard]] PopoverPlacement placePopover(
    const std::optional<QRect>& icon, QSize panel, const std::vector<ScreenArea>& screens);

/// An ordinary window of this size: where it was left, as long as a screen still has that place, else in the middle of
/// the first screen.
[[nodiscard]] QPoint placeWindow(
    const std::optional<QPoint>& left, QSize window, const std::vector<ScreenArea>& screens);

}  // namespace fadeloom
