// SPDX-License-Identifier: MIT
// Tests that run once for each set of render kernels of this architecture.
#pragma once

#include "engine/kernels/RenderChoice.h"
#include "engine/kernels/RenderKernels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace fadeloom {

class KernelTest : public testing::TestWithParam<const RenderKernels*> {
public:
    static auto every()
    {
#ifdef __x86_64__
        return testing::Values(&baselineKernels, &avx2Kernels);
#else
        return testing::Values(&baselineKernels);
#endif
    }
    static std::string name(const testing::TestParamInfo<const RenderKernels*>& info)
    {
        return info.param->name;
    }

protected:
    void SetUp() override
    {
        if (std::ranges::count(usableKernels(), GetParam()) == 0)
            GTEST_SKIP() << "this processor has no " << GetParam()->name;
    }

    [[nodiscard]] static const RenderKernels& kernels() { return *GetParam(); }
};

}  // namespace fadeloom
