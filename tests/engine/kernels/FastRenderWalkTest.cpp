// SPDX-License-Identifier: MIT
// Long random walks, on which the fast implementation must give every bit of the plain one.
#include "engine/kernels/FastRender.h"

#include "tests/engine/kernels/KernelTest.h"
#include "tests/engine/kernels/RenderWalk.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

namespace fadeloom {
namespace {

constexpr std::uint64_t framesOfAWalk = 100'000;

class FastRenderWalk : public KernelTest { };

TEST_P(FastRenderWalk, isBitExact)
{
    for (std::uint64_t seed = 1; seed <= 30; ++seed)
        ASSERT_EQ(RenderWalk(kernels(), seed).walk(framesOfAWalk), std::nullopt) << "seed " << seed;
}

class FastRenderLongForm : public KernelTest { };

TEST_P(FastRenderLongForm, isBitExactForFiftyMillionFrames)
{
    for (std::uint64_t seed = 1001; seed <= 1500; ++seed)
        ASSERT_EQ(RenderWalk(kernels(), seed).walk(framesOfAWalk), std::nullopt) << "seed " << seed;
}

INSTANTIATE_TEST_SUITE_P(Kernels, FastRenderWalk, KernelTest::every(), KernelTest::name);
INSTANTIATE_TEST_SUITE_P(Kernels, FastRenderLongForm, KernelTest::every(), KernelTest::name);

}  // namespace
}  // namespace fadeloom
