// SPDX-License-Identifier: MIT
#include "platform/linux/XdgFolders.h"

#include <utility>

namespace fadeloom {

XdgFolders::XdgFolders(Variables variables)
    : variables_(std::move(variables))
{
}

std::filesystem::path XdgFolders::applicationSupport() const
{
    return folderNamed(variables_, "XDG_CONFIG_HOME", homeFolder(variables_) / ".config");
}

}  // namespace fadeloom
