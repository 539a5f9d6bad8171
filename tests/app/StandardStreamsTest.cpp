// SPDX-License-Identifier: MIT
#include "app/StandardStreams.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace fadeloom {
namespace {

TEST(StandardStreams, areThereEvenWhenTheyWereClosed)
{
    const auto isOpen = [](int stream) { return fcntl(stream, F_GETFD) != -1; };

    EXPECT_EXIT(
        {
            close(STDIN_FILENO);
            close(STDOUT_FILENO);
            secureStandardStreams();
            _exit(isOpen(STDIN_FILENO) && isOpen(STDOUT_FILENO) ? 7 : 1);
        },
        testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace fadeloom
