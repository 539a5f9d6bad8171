// SPDX-License-Identifier: MIT
// What is known about the status icon's position.
#pragma once

#include <QRect>

#include <optional>

namespace fadeloom {

struct IconPlace {
    std::optional<QRect> rect;  // In desktop coordinates.
    bool isUnderPointer = false;  // It is being clicked right now.
};

}  // namespace fadeloom
