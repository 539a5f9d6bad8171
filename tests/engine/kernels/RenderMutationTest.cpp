// SPDX-License-Identifier: MIT
// The walk detects a mere change in the order of two additions, as an accidental rewrite of a section would make.
#include "engine/kernels/VectorKernels.h"

#include "tests/engine/kernels/RenderWalk.h"

#include <gtest/gtest.h>

#include <optional>

namespace fadeloom {
namespace {

constexpr int frames = 100'000;
static_assert(flushBelow == eqOutputFlush);

struct Reassociated {
    template <class Vector>
    FADELOOM_INLINE static Vector step(const SectionVector<Vector>& c, Vector& z1, Vector& z2, Vector x)
    {
        const Vector y = c.b0 * x + z1;
        z1 = (z2 + c.b1 * x) - c.a1 * y;
        z2 = c.b2 * x - c.a2 * y;
        return y;
    }
};

constexpr RenderKernels asItIs = vectorKernels<Section>("as it is");
constexpr RenderKernels reassociated = vectorKernels<Reassociated>("reassociated");

TEST(RenderMutation, kernelsMadeHereAgreeWithThePlainForm)
{
    EXPECT_EQ(RenderWalk(asItIs, 1).walk(frames), std::nullopt);
}

TEST(RenderMutation, anotherOrderOfTheSameAdditionsIsDetected)
{
    EXPECT_NE(RenderWalk(reassociated, 1).walk(frames), std::nullopt);
}

}  // namespace
}  // namespace fadeloom
