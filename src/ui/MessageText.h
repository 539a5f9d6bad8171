// SPDX-License-Identifier: MIT
// The controller's errors in the user's language.
#pragma once

#include "control/ControllerError.h"

#include <QString>

namespace fadeloom {

[[nodiscard]] QString messageText(const ControllerError& error);
/// Without a full stop.
[[nodiscard]] QString messageText(const TapError& error);

}  // namespace fadeloom
