// SPDX-License-Identifier: MIT
// Why a file operation failed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

namespace fadeloom {

struct FileError {
    /// The operation that failed.
    enum class Step : std::uint8_t { read, follow, replace, createBeside, write, createFolder, remove };

    Step step{};
    std::filesystem::path file{};
    std::error_code reason{};  // The system's error.

    /// In English, without a full stop; ends with the system's message.
    [[nodiscard]] std::string description() const;

    friend bool operator==(const FileError&, const FileError&) = default;
};

}  // namespace fadeloom
