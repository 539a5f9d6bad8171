// SPDX-License-Identifier: MIT
#include "platform/pipewire/OpenFiles.h"

#include <sys/resource.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

namespace fadeloom {

std::optional<std::size_t> DescriptorBudget::limitWithoutRoom(std::size_t taps)
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return std::nullopt;
    std::error_code error;
    std::filesystem::directory_iterator open("/proc/self/fd", error);
    if (error == std::errc::too_many_files_open)
        return limit.rlim_cur;
    if (error)
        return std::nullopt;
    const auto count = static_cast<std::size_t>(std::distance(open, {}));
    if (taps == 0)
        otherDescriptors_ = count;
    const auto expected = std::max(count, otherDescriptors_ + taps * filesOfTap);
    return expected + filesOfTap + filesInReserve > limit.rlim_cur
        ? std::optional<std::size_t>(limit.rlim_cur)
        : std::nullopt;
}

}  // namespace fadeloom
