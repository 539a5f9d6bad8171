// SPDX-License-Identifier: MIT
#include "platform/linux/CallerSandbox.h"

#include <fstream>
#include <string>
#include <system_error>

namespace fadeloom {

bool isSandboxed(pid_t process, const std::filesystem::path& processes)
{
    const auto folder = processes / std::to_string(process);
    std::error_code error;
    // Flatpak puts this file into the root folder of its sandboxes; the desktop portal identifies them in the same way.
    const auto status = std::filesystem::symlink_status(folder / "root" / ".flatpak-info", error);
    if (process <= 0 || status.type() != std::filesystem::file_type::not_found)
        return true;
    std::ifstream groups(folder / "cgroup");
    if (!groups)
        return true;
    for (std::string group; std::getline(groups, group);) {
        if (group.find("/snap.") != std::string::npos)
            return true;
    }
    return false;
}

}  // namespace fadeloom
