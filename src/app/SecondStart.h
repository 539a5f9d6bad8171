// SPDX-License-Identifier: MIT
// What a start says and how it ends when the program runs already.
#pragma once

#include "platform/linux/SingleInstance.h"

#include <filesystem>
#include <optional>
#include <string>

namespace fadeloom {

/// The folder in which the instances of a user's session meet.
[[nodiscard]] std::filesystem::path instanceFolder();

struct SecondStart {
    std::string message;
    int exitStatus = 0;
};

/// Absent for the first start. `request`: what the other instance was asked for.
[[nodiscard]] std::optional<SecondStart> secondStart(SingleInstance::Start start, InstanceRequest request);

}  // namespace fadeloom
