// SPDX-License-Identifier: MIT
// What the program cannot do without.
#pragma once

#include "app/EarlyEnd.h"
#include "platform/Platform.h"
#include "platform/StandardFolders.h"

#include <optional>

namespace fadeloom {

/// Absent when it can start. Without a folder for the settings they would be kept wherever the program was started.
[[nodiscard]] inline std::optional<EarlyEnd> reasonNotToStart(const Platform& platform)
{
    if (platform.folders.applicationSupport().empty())
        return EarlyEnd{"there is no folder for its settings", 1};
    return std::nullopt;
}

}  // namespace fadeloom
