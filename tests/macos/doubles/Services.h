// SPDX-License-Identifier: MIT
// Process properties set by tests.
#pragma once

#include <cstdint>
#include <map>

namespace doubles {

/// The responsible process, by pid; without an entry the system does not know.
std::map<std::int32_t, std::int32_t>& responsiblePids();

}  // namespace doubles
