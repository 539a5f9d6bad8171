// SPDX-License-Identifier: MIT
#include "platform/macos/SilentTaps.h"

#include <algorithm>

namespace fadeloom {

void SilentTaps::look(std::span<const AudioProcess> processes)
{
    std::set<AudioProcessID> present;
    playing_.clear();
    for (const auto& process : processes) {
        present.insert(process.id);
        if (process.isPlaying)
            playing_.insert(process.id);
    }
    std::erase_if(patience_, [&](const auto& each) {
        return std::ranges::none_of(each.first.first, [&](auto id) { return present.contains(id); });
    });
    looks_.notify();
}

bool SilentTaps::isAnyPlaying(std::span<const AudioProcessID> processes) const
{
    return std::ranges::any_of(processes, [this](auto id) { return playing_.contains(id); });
}

std::chrono::seconds SilentTaps::patienceWith(const Key& key) const
{
    const auto known = patience_.find(key);
    return known == patience_.end() ? firstPatience : known->second;
}

void SilentTaps::noteRenewal(const Key& key)
{
    patience_[key] = std::min(patienceWith(key) * 2, longestPatience);
}

}  // namespace fadeloom
