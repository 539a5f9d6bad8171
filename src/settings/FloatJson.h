// SPDX-License-Identifier: MIT
// The JSON of this folder's sources and those of commands; no header of ours that others see has it.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// Its numbers with a fraction are floats, as ours are. Read as a double first, a text can be rounded twice and come out
/// as the next float: 7.038531e-26 does.
using FloatJson =
    nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

}  // namespace fadeloom
