// SPDX-License-Identifier: MIT
// Names that nobody else has.
#pragma once

#include <string>

namespace fadeloom {

/// A new random UUID (version 4) in its text form, 36 characters in upper case. Thread: any but the IO thread.
[[nodiscard]] std::string makeUuid();

}  // namespace fadeloom
