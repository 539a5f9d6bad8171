// SPDX-License-Identifier: MIT
// Starting at login, as an autostart entry in the user's folder.
#pragma once

#include "platform/LoginItem.h"
#include "platform/linux/ProgramFiles.h"
#include "platform/linux/Variables.h"

#include <filesystem>
#include <vector>

namespace fadeloom {

/// Desktops start the entries of the "autostart" folder. Their tools disable an entry without removing it; such an
/// entry is `notRegistered`. One whose program no longer exists is `notFound`.
class AutostartLoginItem final : public LoginItem {
public:
    /// `program`: the absolute path of the program to start.
    explicit AutostartLoginItem(const Variables& variables = processVariables())
        : AutostartLoginItem(variables, startedFile(variables))
    {
    }
    AutostartLoginItem(const Variables& variables, std::filesystem::path program);

    Status status() const override;
    /// Always rewrites the entry, because an existing one may name another program, or be disabled.
    std::expected<void, LoginItemError> registerItem() override;
    std::expected<void, LoginItemError> unregisterItem() override;

private:
    const std::filesystem::path entry_;
    const std::filesystem::path program_;
    const std::vector<std::filesystem::path> programFolders_;
};

}  // namespace fadeloom
