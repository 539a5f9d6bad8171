// SPDX-License-Identifier: MIT
// Why a file cannot be used.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

namespace fadeloom {

struct FileError {
    /// What was tried with it.
    enum class Step : std::uint8_t { read, follow, replace, createBeside, write, createFolder, remove };

    Step step{};
    std::filesystem::path file{};
    std::error_code reason{};  // The system's own answer.

    /// In English, without a full stop; ends with the system's own words.
    [[nodiscard]] std::string description() const;

    friend bool operator==(const FileError&, const FileError&) = default;
};

}  // namespace fadeloom
