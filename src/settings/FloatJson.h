// SPDX-License-Identifier: MIT
// The JSON type of this folder's sources and those of commands; not exposed in public headers.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// Its floating-point numbers are floats, like ours. Parsing a text as double first can round twice and yield the next
/// float: 7.038531e-26 does.
using FloatJson =
    nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

}  // namespace fadeloom
