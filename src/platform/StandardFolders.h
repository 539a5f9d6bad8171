// SPDX-License-Identifier: MIT
// The user's standard folders.
#pragma once

#include <filesystem>

namespace fadeloom {

class StandardFolders {
public:
    virtual ~StandardFolders() = default;

    /// The parent of all programs' settings folders. Thread: any.
    [[nodiscard]] virtual std::filesystem::path applicationSupport() const = 0;
    /// The user's music folder. Thread: any.
    [[nodiscard]] virtual std::filesystem::path music() const = 0;
};

}  // namespace fadeloom
