// SPDX-License-Identifier: MIT
// What tests say of processes.
#pragma once

#include <cstdint>
#include <map>

namespace doubles {

/// Who answers for a process, by its pid; without an entry the system cannot tell.
std::map<std::int32_t, std::int32_t>& responsiblePids();

}  // namespace doubles
