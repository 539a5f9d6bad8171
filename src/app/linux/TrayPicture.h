// SPDX-License-Identifier: MIT
// The status icon's picture.
#pragma once

#include "platform/qtdesktop/StatusNotifierItem.h"

namespace fadeloom {

/// For a dark or light bar, in every size that bars ask for, with an outline in the opposite colour: many bars are
/// lighter or darker than the desktop, and there is no way to query that.
[[nodiscard]] QIcon trayDrawing(bool isOnDark);

/// The drawing, and its name in the icon theme where bars recolour such icons. `desktop`: the value of
/// XDG_CURRENT_DESKTOP.
[[nodiscard]] StatusNotifierItem::Picture trayPicture(bool isOnDark, const QString& desktop);

}  // namespace fadeloom
