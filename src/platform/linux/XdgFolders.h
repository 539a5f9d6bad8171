// SPDX-License-Identifier: MIT
// The user's folders, according to the freedesktop specifications for base and user directories.
#pragma once

#include "platform/StandardFolders.h"
#include "platform/linux/Variables.h"

namespace fadeloom {

class XdgFolders final : public StandardFolders {
public:
    explicit XdgFolders(Variables variables = processVariables());

    /// "$XDG_CONFIG_HOME" if that is an absolute path, else "~/.config".
    std::filesystem::path applicationSupport() const override;
    /// As configured in "user-dirs.dirs", else "~/Music". Read each time.
    std::filesystem::path music() const override;

private:
    Variables variables_;
};

}  // namespace fadeloom
