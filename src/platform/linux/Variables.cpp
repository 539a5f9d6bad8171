// SPDX-License-Identifier: MIT
#include "platform/linux/Variables.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace fadeloom {

Variables processVariables()
{
    return [](const char* name) -> std::optional<std::string> {
        const char* value = std::getenv(name);
        if (value == nullptr || *value == '\0')
            return std::nullopt;
        return value;
    };
}

std::filesystem::path folderNamed(
    const Variables& variables, const char* name, const std::filesystem::path& otherwise)
{
    const std::filesystem::path named = variables(name).value_or("");
    return named.is_absolute() ? named : otherwise;
}

std::filesystem::path homeFolder(const Variables& variables)
{
    std::array<char, 16384> memory;
    passwd account = {};
    passwd* found = nullptr;
    std::filesystem::path accountHome = "/";
    if (getpwuid_r(getuid(), &account, memory.data(), memory.size(), &found) == 0 && found != nullptr
        && found->pw_dir != nullptr && *found->pw_dir == '/')
        accountHome = found->pw_dir;
    return folderNamed(variables, "HOME", accountHome);
}

}  // namespace fadeloom
