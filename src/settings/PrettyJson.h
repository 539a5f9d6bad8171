// SPDX-License-Identifier: MIT
// Writes human-readable JSON. For this folder's sources; not exposed in public headers.
//
// The library's own writer does not always find the shortest representation of a number: it writes 1.147e+09 as
// 1.1470001e+09.
#pragma once

#include "settings/FloatJson.h"

#include <string>

namespace fadeloom {

/// One member per line, sorted keys, a line feed at the end. Floating-point numbers, which are finite, are written as
/// the shortest text that reads back as the same float. Invalid UTF-8 becomes replacement characters.
[[nodiscard]] std::string prettyJson(const FloatJson& json);

}  // namespace fadeloom
