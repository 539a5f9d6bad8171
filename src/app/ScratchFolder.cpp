// SPDX-License-Identifier: MIT
#include "app/ScratchFolder.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

namespace fadeloom {

std::expected<ScratchFolder, std::string> ScratchFolder::create()
{
    std::error_code error;
    const auto parent = std::filesystem::temp_directory_path(error);
    auto name = (parent / "fadeloom-XXXXXX").string();
    if (!error && mkdtemp(name.data()) == nullptr)
        error.assign(errno, std::generic_category());
    if (error)
        return std::unexpected("no temporary folder can be made: " + error.message());
    return ScratchFolder(name);
}

ScratchFolder::ScratchFolder(std::filesystem::path path)
    : path_(std::move(path))
{
}

ScratchFolder::ScratchFolder(ScratchFolder&& other) noexcept
    : path_(std::exchange(other.path_, {}))
{
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    if (!path_.empty())
        std::filesystem::remove_all(path_, ignored);
}

}  // namespace fadeloom
