// SPDX-License-Identifier: MIT
// Globally unique names.
#pragma once

#include <string>

namespace fadeloom {

/// A new random UUID (version 4) as text, 36 characters in upper case. Thread: any but the IO thread.
[[nodiscard]] std::string makeUuid();

}  // namespace fadeloom
