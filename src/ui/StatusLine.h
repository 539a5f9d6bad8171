// SPDX-License-Identifier: MIT
// The status under an app's name: one at a time, the most urgent first.
#pragma once

#include "control/AppEntry.h"
#include "control/ControllerState.h"

#include <QString>

namespace fadeloom {

struct StatusLine {
    enum class Kind { failed, outOfReach, disconnected, recording, onCall, lowered, playing, idle };

    Kind kind = Kind::idle;
    QString text{};
    QString help{};
    QString symbol{};  // Empty if there is only text.

    friend bool operator==(const StatusLine&, const StatusLine&) = default;
};

[[nodiscard]] StatusLine statusLine(const ControllerState& state, const AppEntry& app);

}  // namespace fadeloom
