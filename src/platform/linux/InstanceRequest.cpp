// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceRequest.h"

#include <algorithm>

namespace fadeloom {

std::string_view nameOf(InstanceRequest request)
{
    return std::ranges::find(instanceRequestNames, request, &InstanceRequestName::request)->name;
}

std::string_view nameOf(InstanceAnswer answer)
{
    return std::ranges::find(instanceAnswerNames, answer, &InstanceAnswerName::answer)->name;
}

std::optional<InstanceRequest> instanceRequestNamed(std::string_view name)
{
    const auto found = std::ranges::find(instanceRequestNames, name, &InstanceRequestName::name);
    return found == instanceRequestNames.end() ? std::nullopt : std::optional(found->request);
}

std::optional<InstanceAnswer> instanceAnswerNamed(std::string_view name)
{
    const auto found = std::ranges::find(instanceAnswerNames, name, &InstanceAnswerName::name);
    return found == instanceAnswerNames.end() ? std::nullopt : std::optional(found->answer);
}

}  // namespace fadeloom
