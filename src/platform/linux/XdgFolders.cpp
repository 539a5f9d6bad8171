// SPDX-License-Identifier: MIT
#include "platform/linux/XdgFolders.h"

#include "platform/linux/BoundedFile.h"
#include "platform/linux/UserFolders.h"

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

std::filesystem::path XdgFolders::music() const
{
    constexpr std::size_t longestList = 1 << 20;
    const auto home = homeFolder(variables_);
    const auto list = readBoundedFile(applicationSupport() / "user-dirs.dirs", longestList);
    return userFolder(list.value_or(""), "XDG_MUSIC_DIR", home).value_or(home / "Music");
}

}  // namespace fadeloom
