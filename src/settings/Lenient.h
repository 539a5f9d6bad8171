// SPDX-License-Identifier: MIT
// A value that may be damaged without invalidating its surroundings.
#pragma once

#include <optional>

namespace fadeloom {

/// Decoding one never fails; a value that does not decode is absent.
template <typename Value>
struct Lenient {
    std::optional<Value> value;
};

}  // namespace fadeloom
