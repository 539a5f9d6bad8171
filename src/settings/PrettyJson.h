// SPDX-License-Identifier: MIT
// Writes JSON for people. For this folder's sources; no header of ours that others see has it.
//
// The library's own writer does not always find the shortest text for a number: it writes 1.147e+09 as 1.1470001e+09.
#pragma once

#include "settings/FloatJson.h"

#include <string>

namespace fadeloom {

/// One member per line, keys in order, a line feed at the end. Floating-point numbers, which are finite, are
/// written as the shortest text that reads back as the same float. Bytes that are not UTF-8 become replacement
/// characters.
[[nodiscard]] std::string prettyJson(const FloatJson& json);

}  // namespace fadeloom
