// SPDX-License-Identifier: MIT
#include "platform/MainLoop.h"

#include <cstdio>
#include <cstdlib>

namespace fadeloom {

void MainLoop::requireCurrent() const
{
    if (isCurrent())
        return;
    std::fputs("Fatal error: Incorrect actor executor assumption; Expected same executor as the main loop\n",
        stderr);
    std::abort();
}

}  // namespace fadeloom
