// SPDX-License-Identifier: MIT
// The picture on the status icon.
#pragma once

#include <QIcon>

namespace fadeloom {

/// In one colour, for a panel that is dark or light, in every size that trays ask for.
[[nodiscard]] QIcon trayPicture(bool isOnDark);

}  // namespace fadeloom
