// SPDX-License-Identifier: MIT
// Runs the tests, each with an empty journal and an autorelease pool, and fails those that leak an object.
#include "tests/macos/doubles/Dispatch.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

#include <gtest/gtest.h>

#include <optional>

namespace doubles {
namespace {

class NothingStays final : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override
    {
        journal().clear();
        before_ = liveObjects();
        pool_.emplace();
    }
    void OnTestEnd(const ::testing::TestInfo&) override
    {
        clearQueues();
        pool_.reset();
        EXPECT_EQ(liveObjects(), before_) << "objects that were not released are among these:\n"
                                          << describeLiveObjects();
    }

    std::size_t before_ = 0;
    std::optional<AutoreleasePool> pool_;
};

}  // namespace
}  // namespace doubles

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new doubles::NothingStays);
    return RUN_ALL_TESTS();
}
