// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedFaults.h"

#include <algorithm>

namespace fadeloom {

void SimulatedFaults::refuse(const Match& match, HowOften howOften, AudioStatus status)
{
    refusals_.push_back({match, howOften, status});
}

void SimulatedFaults::allow(AudioOperation operation)
{
    std::erase_if(
        refusals_, [operation](const Refusal& refusal) { return refusal.match.operation == operation; });
}

AudioStatus SimulatedFaults::check(
    AudioOperation operation, AudioObjectID object, AudioObjectPropertySelector selector)
{
    const auto found = std::ranges::find_if(refusals_, [&](const Refusal& refusal) {
        const Match& match = refusal.match;
        return match.operation == operation && match.selector.value_or(selector) == selector
            && match.object.value_or(object) == object;
    });
    if (found == refusals_.end())
        return kAudioHardwareNoError;
    const AudioStatus status = found->status;
    if (found->howOften == HowOften::once)
        refusals_.erase(found);
    return status;
}

}  // namespace fadeloom
