// SPDX-License-Identifier: MIT
// Where the system keeps a user's files.
#pragma once

#include <filesystem>

namespace fadeloom {

class StandardFolders {
public:
    virtual ~StandardFolders() = default;

    /// The folder in which each program has one of its own for its settings. Thread: any.
    [[nodiscard]] virtual std::filesystem::path applicationSupport() const = 0;
    /// The user's folder for music. Thread: any.
    [[nodiscard]] virtual std::filesystem::path music() const = 0;
};

}  // namespace fadeloom
