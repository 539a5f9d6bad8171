// SPDX-License-Identifier: MIT
// Environment variables, behind a function so that tests can provide their own.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// A variable's value; nullopt if it is unset or empty.
using Variables = std::function<std::optional<std::string>(const char* name)>;

[[nodiscard]] Variables processVariables();

/// The user's home: "HOME", else from the user database, else the root folder.
[[nodiscard]] std::filesystem::path homeFolder(const Variables& variables);

/// The absolute path in a variable; `otherwise` if there is none.
[[nodiscard]] std::filesystem::path folderNamed(
    const Variables& variables, const char* name, const std::filesystem::path& otherwise);

}  // namespace fadeloom
