// SPDX-License-Identifier: MIT
// How long something has been going on, in words for the panel.
#pragma once

#include <QString>

#include <chrono>

namespace fadeloom {

/// Minutes and whole seconds: "0:07", "12:30", "75:00". A clock that went back shows "0:00".
[[nodiscard]] QString elapsedText(std::chrono::system_clock::duration elapsed);

}  // namespace fadeloom
