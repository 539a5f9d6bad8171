// SPDX-License-Identifier: MIT
// What is known of the place of the status icon.
#pragma once

#include <QRect>

#include <optional>

namespace fadeloom {

struct IconPlace {
    std::optional<QRect> rect;  // On the desktop.
    bool isUnderPointer = false;  // It is being clicked right now.
};

}  // namespace fadeloom
