// SPDX-License-Identifier: MIT
// Messages and exit statuses of a start while another instance is running.
#pragma once

#include "app/EarlyEnd.h"
#include "platform/linux/SingleInstance.h"

#include <filesystem>
#include <optional>

namespace fadeloom {

/// The folder of the session's lock and socket.
[[nodiscard]] std::filesystem::path instanceFolder();

/// nullopt for the first start. `request`: what the other instance was asked to do.
[[nodiscard]] std::optional<EarlyEnd> secondStart(SingleInstance::Start start, InstanceRequest request);

}  // namespace fadeloom
