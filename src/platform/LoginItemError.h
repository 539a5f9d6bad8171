// SPDX-License-Identifier: MIT
// Why starting at login cannot be enabled or disabled.
#pragma once

#include "base/FileError.h"

#include <string>
#include <variant>

namespace fadeloom {

/// The location of the program to start is unknown.
struct ProgramUnknown {
    friend bool operator==(const ProgramUnknown&, const ProgramUnknown&) = default;
};

/// The system's own message, in the user's language.
struct SystemMessage {
    std::string text;

    friend bool operator==(const SystemMessage&, const SystemMessage&) = default;
};

using LoginItemError = std::variant<FileError, ProgramUnknown, SystemMessage>;

}  // namespace fadeloom
