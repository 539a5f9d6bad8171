// SPDX-License-Identifier: MIT
// A new temporary folder, deleted with its contents by the destructor.
#pragma once

#include <expected>
#include <filesystem>
#include <string>

namespace fadeloom {

class ScratchFolder {
public:
    /// The error is a sentence for the user, in English.
    [[nodiscard]] static std::expected<ScratchFolder, std::string> create();
    ScratchFolder(ScratchFolder&& other) noexcept;
    ScratchFolder& operator=(ScratchFolder&&) = delete;
    ~ScratchFolder();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    explicit ScratchFolder(std::filesystem::path path);

    std::filesystem::path path_;  // Empty once moved from.
};

}  // namespace fadeloom
