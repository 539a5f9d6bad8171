// SPDX-License-Identifier: MIT
// Identifies the application of a systemd unit.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The unit that a launcher created for one application: the innermost component of a process's control group with a
/// name of that form ("app-….scope", "app-….service", "snap.….scope"). Empty if there is none. `groups`: the contents
/// of its "cgroup" file.
[[nodiscard]] std::string applicationUnit(std::string_view groups);

/// The desktop ids that such a unit may denote, the likeliest first.
[[nodiscard]] std::vector<std::string> desktopIDsOfUnit(std::string_view unit);

}  // namespace fadeloom
