// SPDX-License-Identifier: MIT
#include "engine/kernels/RenderChoice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::AnyOf;

TEST(RenderChoice, everyProcessorCanRunTheBaseline)
{
    ASSERT_FALSE(usableKernels().empty());
    EXPECT_EQ(usableKernels().front(), &baselineKernels);
}

TEST(RenderChoice, theBestKernelsAreChosenUnlessThePlainFormIsAskedFor)
{
    EXPECT_THAT(chosenKernels(), AnyOf(usableKernels().back(), nullptr));
}

}  // namespace
}  // namespace fadeloom
