// SPDX-License-Identifier: MIT
// Which application a systemd unit was made for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The unit that a launcher made for one application: the innermost part of a process's control group whose name says
/// so ("app-….scope", "app-….service", "snap.….scope"). Empty for none. `groups`: the text of its "cgroup" file.
[[nodiscard]] std::string applicationUnit(std::string_view groups);

/// The desktop ids that such a unit may stand for, the likeliest first.
[[nodiscard]] std::vector<std::string> desktopIDsOfUnit(std::string_view unit);

}  // namespace fadeloom
