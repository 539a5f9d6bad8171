// SPDX-License-Identifier: MIT
// Starting at login, as an autostart entry in the user's folder.
#pragma once

#include "platform/LoginItem.h"
#include "platform/linux/ProgramFiles.h"
#include "platform/linux/Variables.h"

#include <filesystem>
#include <vector>

namespace fadeloom {

/// Desktops start what their "autostart" folder names. Their tools switch an entry off without removing it; such an
/// entry is `notRegistered`. One whose program is gone is `notFound`.
class AutostartLoginItem final : public LoginItem {
public:
    /// `program`: what is to be started, by its absolute path.
    explicit AutostartLoginItem(const Variables& variables = processVariables())
        : AutostartLoginItem(variables, startedFile(variables))
    {
    }
    AutostartLoginItem(const Variables& variables, std::filesystem::path program);

    Status status() const override;
    /// Writes the entry anew, also when there is one: it may name another program, or be switched off.
    std::expected<void, LoginItemError> registerItem() override;
    std::expected<void, LoginItemError> unregisterItem() override;

private:
    const std::filesystem::path entry_;
    const std::filesystem::path program_;
    const std::vector<std::filesystem::path> programFolders_;
};

}  // namespace fadeloom
