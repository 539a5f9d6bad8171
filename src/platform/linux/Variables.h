// SPDX-License-Identifier: MIT
// The process's environment variables, behind a function so that tests bring their own.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// A variable's value; absent when it is not set, or set to nothing.
using Variables = std::function<std::optional<std::string>(const char* name)>;

[[nodiscard]] Variables processVariables();

/// The user's home: "HOME", else the account's entry, else the root folder.
[[nodiscard]] std::filesystem::path homeFolder(const Variables& variables);

/// A folder that a variable names by an absolute path; `otherwise` when it names none.
[[nodiscard]] std::filesystem::path folderNamed(
    const Variables& variables, const char* name, const std::filesystem::path& otherwise);

}  // namespace fadeloom
