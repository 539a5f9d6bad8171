// SPDX-License-Identifier: MIT
#include "platform/sndfile/SignalBlock.h"

#include "platform/sndfile/DiskFile.h"
#include "tests/platform/sndfile/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <array>
#include <csignal>
#include <thread>

namespace fadeloom {
namespace {

bool isHeldHere(int signal)
{
    sigset_t held;
    pthread_sigmask(SIG_SETMASK, nullptr, &held);
    return sigismember(&held, signal) == 1;
}

TEST(SignalBlock, blocksThemTemporarily)
{
    {
        const SignalBlock held;
        EXPECT_TRUE(isHeldHere(SIGTERM));
    }
    EXPECT_FALSE(isHeldHere(SIGTERM));
}

TEST(SignalBlock, aThreadStartedMeanwhileInheritsTheBlock)
{
    bool isSpared = false;
    std::jthread thread;
    {
        const SignalBlock held;
        thread = std::jthread{[&](const std::stop_token& stop) {
            while (!stop.stop_requested())
                std::this_thread::yield();
            isSpared = isHeldHere(SIGTERM) && isHeldHere(SIGXFSZ);
        }};
    }
    thread.request_stop();
    thread.join();

    EXPECT_TRUE(isSpared);
}

TEST(SignalBlock, aPendingSignalIsDeliveredAfterwards)
{
    const auto end = endOfChild([] {
        {
            const SignalBlock held;
            std::raise(SIGTERM);
        }
        return 0;
    });

    EXPECT_EQ(end, -SIGTERM);
}

TEST(SignalBlock, aFileThatBecomesTooLargeDoesNotEndTheProgram)
{
    const TemporaryFolder folder;
    const auto end = endOfChild([&] {
        limitFileSizes(5);
        {
            const SignalBlock held;
            const auto file = *DiskFile::create(folder.path() / "file");
            EXPECT_EQ(file->write(0, std::array<std::byte, 6>{}), 5U);
            EXPECT_EQ(file->failure(), EFBIG);
        }
        EXPECT_FALSE(isHeldHere(SIGXFSZ));
        return 0;
    });

    EXPECT_EQ(end, 0);
}

}  // namespace
}  // namespace fadeloom
