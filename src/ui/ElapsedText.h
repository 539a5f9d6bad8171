// SPDX-License-Identifier: MIT
// Elapsed time as text for the panel.
#pragma once

#include <QString>

#include <chrono>

namespace fadeloom {

/// Minutes and whole seconds: "0:07", "12:30", "75:00". "0:00" if the clock was set back.
[[nodiscard]] QString elapsedText(std::chrono::system_clock::duration elapsed);

}  // namespace fadeloom
