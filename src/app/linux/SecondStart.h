// SPDX-License-Identifier: MIT
// What a start says and how it ends when the program runs already.
#pragma once

#include "app/EarlyEnd.h"
#include "platform/linux/SingleInstance.h"

#include <filesystem>
#include <optional>

namespace fadeloom {

/// The folder in which the instances of a user's session meet.
[[nodiscard]] std::filesystem::path instanceFolder();

/// Absent for the first start. `request`: what the other instance was asked for.
[[nodiscard]] std::optional<EarlyEnd> secondStart(SingleInstance::Start start, InstanceRequest request);

}  // namespace fadeloom
