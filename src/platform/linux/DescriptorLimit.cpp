// SPDX-License-Identifier: MIT
#include "platform/linux/DescriptorLimit.h"

#include <optional>

namespace fadeloom {
namespace {

// Per process, like the limit itself.
std::optional<rlim_t> original;

}  // namespace

void raiseDescriptorLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    if (!original)
        original = limit.rlim_cur;
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}

OriginalDescriptorLimit::OriginalDescriptorLimit()
{
    if (!original || getrlimit(RLIMIT_NOFILE, &raised_) != 0)
        return;
    const rlimit former{*original, raised_.rlim_max};
    isLowered_ = setrlimit(RLIMIT_NOFILE, &former) == 0;
}

OriginalDescriptorLimit::~OriginalDescriptorLimit()
{
    if (isLowered_)
        setrlimit(RLIMIT_NOFILE, &raised_);
}

}  // namespace fadeloom
