// SPDX-License-Identifier: MIT
#include "app/StandardStreams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <iostream>
#include <string>

namespace fadeloom {
namespace {

TEST(StandardStreams, areOpenEvenIfTheyWereClosed)
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

TEST(StandardStreams, unreadErrorsDoNotBlock)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);

    EXPECT_EXIT(
        {
            dup2(ends[1], STDERR_FILENO);
            secureStandardStreams();
            alarm(20);
            const std::string line(1000, 'x');
            for (int i = 0; i < 1000; ++i)
                std::cerr << line << std::endl;
            const bool isSharedOneUntouched = (fcntl(ends[1], F_GETFL) & O_NONBLOCK) == 0;
            _exit(isSharedOneUntouched ? 7 : 1);
        },
        testing::ExitedWithCode(7), "");
    close(ends[0]);
    close(ends[1]);
}

}  // namespace
}  // namespace fadeloom
