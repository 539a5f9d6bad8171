// SPDX-License-Identifier: MIT
#include "platform/pipewire/OpenFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <vector>

namespace fadeloom {
namespace {

TEST(OpenFiles, roomForATapIsLeftWhileTheReserveIsNotTouched)
{
    rlimit former{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &former), 0);
    DescriptorBudget files;
    EXPECT_EQ(files.limitWithoutRoom(1), std::nullopt);

    const rlimit low{100, former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &low), 0);
    std::vector<int> opened;
    while (!files.limitWithoutRoom(1) && opened.size() < low.rlim_cur)
        opened.push_back(open("/dev/null", O_RDONLY | O_CLOEXEC));
    const auto atTheEdge = files.limitWithoutRoom(1);
    const int next = opened.empty() ? 0 : opened.back();
    for (int file = 0; file >= 0;)  // Until none are left.
        opened.push_back(file = open("/dev/null", O_RDONLY | O_CLOEXEC));
    const auto withNoneLeft = files.limitWithoutRoom(1);
    for (const int file : opened)
        close(file);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &former), 0);

    EXPECT_EQ(atTheEdge, 100U);
    EXPECT_EQ(withNoneLeft, 100U);
    EXPECT_LE(static_cast<std::size_t>(next), 100 - filesOfTap - filesInReserve + 1);
    EXPECT_EQ(files.limitWithoutRoom(1), std::nullopt);
}

TEST(OpenFiles, tapsWhoseFilesAreStillToComeCount)
{
    rlimit former{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &former), 0);
    const rlimit low{128, former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &low), 0);
    DescriptorBudget files;
    const auto first = files.limitWithoutRoom(0);
    const auto ninth = files.limitWithoutRoom(8);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &former), 0);

    EXPECT_EQ(first, std::nullopt);
    EXPECT_EQ(ninth, 128U);
}

}  // namespace
}  // namespace fadeloom
