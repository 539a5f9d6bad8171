// SPDX-License-Identifier: MIT
#include "platform/linux/CallerSandbox.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

namespace fadeloom {
namespace {

class CallerSandboxTest : public ::testing::Test {
protected:
    /// A process directory as in the process file system.
    std::filesystem::path process(const std::string& groups)
    {
        const auto shown = folder.path() / "77";
        std::filesystem::create_directories(shown / "root");
        std::ofstream(shown / "cgroup") << groups;
        return shown;
    }
    bool isInSandbox() { return isSandboxed(77, folder.path()); }

    TemporaryFolder folder;
};

TEST_F(CallerSandboxTest, anOrdinaryProcessIsNot)
{
    process("0::/user.slice/user-1000.slice/session-2.scope\n");

    EXPECT_FALSE(isInSandbox());
    EXPECT_FALSE(isSandboxed(getpid())) << "nor is this one";
}

TEST_F(CallerSandboxTest, aFlatpakIs)
{
    std::ofstream(process("0::/user.slice\n") / "root" / ".flatpak-info") << "[Application]\n";

    EXPECT_TRUE(isInSandbox());
}

TEST_F(CallerSandboxTest, aSnapIs)
{
    process("0::/user.slice/user-1000.slice/user@1000.service/app.slice/snap.player.player-1.scope\n");

    EXPECT_TRUE(isInSandbox());
}

TEST_F(CallerSandboxTest, aProcessThatCannotBeInspectedIs)
{
    EXPECT_TRUE(isInSandbox()) << "no such process";
    EXPECT_TRUE(isSandboxed(0));
    EXPECT_TRUE(isSandboxed(-1));
}

}  // namespace
}  // namespace fadeloom
