// SPDX-License-Identifier: MIT
// Requirements for starting.
#pragma once

#include "app/EarlyEnd.h"
#include "platform/Platform.h"
#include "platform/StandardFolders.h"

#include <optional>

namespace fadeloom {

/// nullopt if the program can start. Without a settings folder, settings would be stored in the current directory.
[[nodiscard]] inline std::optional<EarlyEnd> reasonNotToStart(const Platform& platform)
{
    if (platform.folders.applicationSupport().empty())
        return EarlyEnd{"there is no folder for its settings", 1};
    return std::nullopt;
}

}  // namespace fadeloom
