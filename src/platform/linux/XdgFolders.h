// SPDX-License-Identifier: MIT
// The user's folders, where the freedesktop rules for base and user directories put them.
#pragma once

#include "platform/StandardFolders.h"
#include "platform/linux/Variables.h"

namespace fadeloom {

class XdgFolders final : public StandardFolders {
public:
    explicit XdgFolders(Variables variables = processVariables());

    /// "$XDG_CONFIG_HOME" when that is an absolute path, else "~/.config".
    std::filesystem::path applicationSupport() const override;
    /// What "user-dirs.dirs" names, else "~/Music". Read anew each time.
    std::filesystem::path music() const override;

private:
    Variables variables_;
};

}  // namespace fadeloom
