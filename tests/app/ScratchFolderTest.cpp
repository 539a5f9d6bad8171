// SPDX-License-Identifier: MIT
#include "app/ScratchFolder.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(ScratchFolder, goesWithAllItHolds)
{
    std::filesystem::path path;
    {
        const auto folder = ScratchFolder::create();
        ASSERT_TRUE(folder);
        path = folder->path();
        std::filesystem::create_directories(path / "deep" / "inside");
    }

    EXPECT_FALSE(path.empty());
    EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace fadeloom
