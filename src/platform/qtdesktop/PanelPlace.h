// SPDX-License-Identifier: MIT
// Where the panel stands.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace fadeloom {

/// What is left free to the icon, and to the edges of the screen, in pixels.
constexpr int panelGap = 6;

/// The upper left corner of a panel of this size beside `anchor`, a status icon or a click on one: below it when it is
/// in the upper half of the screen, above it otherwise, centred on it, and all of it inside of `screen`, the part of
/// the screen that is free for windows. Without an anchor, the upper right corner of the screen.
[[nodiscard]] QPoint panelPlace(const QRect& anchor, QSize panel, const QRect& screen);

}  // namespace fadeloom
