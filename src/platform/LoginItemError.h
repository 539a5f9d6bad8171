// SPDX-License-Identifier: MIT
// Why the program cannot be made to start at login, or not to.
#pragma once

#include "base/FileError.h"

#include <string>
#include <variant>

namespace fadeloom {

/// Nobody tells where the program is that would be started.
struct ProgramUnknown {
    friend bool operator==(const ProgramUnknown&, const ProgramUnknown&) = default;
};

/// The system's own sentence, in the user's language.
struct SystemWords {
    std::string text;

    friend bool operator==(const SystemWords&, const SystemWords&) = default;
};

using LoginItemError = std::variant<FileError, ProgramUnknown, SystemWords>;

}  // namespace fadeloom
