// SPDX-License-Identifier: MIT
#include "platform/macos/SilentTaps.h"

#include <algorithm>

namespace fadeloom {

void SilentTaps::check(std::span<const AudioProcess> processes)
{
    std::set<AudioProcessID> present;
    playing_.clear();
    for (const auto& process : processes) {
        present.insert(process.id);
        if (process.isPlaying)
            playing_.insert(process.id);
    }
    std::erase_if(toleratedSilence_, [&](const auto& each) {
        return std::ranges::none_of(each.first.first, [&](auto id) { return present.contains(id); });
    });
    checks_.notify();
}

bool SilentTaps::isAnyPlaying(std::span<const AudioProcessID> processes) const
{
    return std::ranges::any_of(processes, [this](auto id) { return playing_.contains(id); });
}

std::chrono::seconds SilentTaps::toleratedSilence(const Key& key) const
{
    const auto known = toleratedSilence_.find(key);
    return known == toleratedSilence_.end() ? initialTolerance : known->second;
}

void SilentTaps::tapReplaced(const Key& key)
{
    toleratedSilence_[key] = std::min(toleratedSilence(key) * 2, maximumTolerance);
}

}  // namespace fadeloom
