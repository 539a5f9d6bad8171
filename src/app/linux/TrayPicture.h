// SPDX-License-Identifier: MIT
// The picture on the status icon.
#pragma once

#include "platform/qtdesktop/StatusNotifierItem.h"

namespace fadeloom {

/// For a bar that is dark or light, in every size that bars ask for, with a rim of the other colour: many bars are not as
/// light or dark as the desktop, and tell nobody.
[[nodiscard]] QIcon trayDrawing(bool isOnDark);

/// The drawing, and the name under which the desktop's icon theme has it where bars give such icons their own colour.
/// `desktop`: the value of XDG_CURRENT_DESKTOP.
[[nodiscard]] StatusNotifierItem::Picture trayPicture(bool isOnDark, const QString& desktop);

}  // namespace fadeloom
