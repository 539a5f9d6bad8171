// SPDX-License-Identifier: MIT
#include "engine/AppTap.h"

#include "engine/Renderer.h"

#include <utility>

namespace fadeloom {

std::expected<std::unique_ptr<AppTap>, TapError> AppTap::create(AudioSystem& system,
    std::vector<AudioProcessID> processIDs, const OutputDevice& output, TapScope scope,
    std::shared_ptr<TapParameters> parameters, const std::string& name)
{
    auto tap = system.createTap({.processes = processIDs, .output = output, .scope = scope, .name = name},
        [&](const TapFormat& format) { return std::make_shared<Renderer>(parameters, format); });
    if (!tap)
        return std::unexpected(std::move(tap.error()));
    // The constructor is private, so std::make_unique cannot call it.
    return std::unique_ptr<AppTap>(new AppTap(output, scope, std::move(processIDs), std::move(*tap)));
}

AppTap::AppTap(OutputDevice output, TapScope scope, std::vector<AudioProcessID> processIDs,
    std::unique_ptr<ProcessTap> tap)
    : output_(std::move(output))
    , scope_(scope)
    , processIDs_(std::move(processIDs))
    , tap_(std::move(tap))
    , sampleRate_(tap_->sampleRate())
{
}

bool AppTap::update(std::vector<AudioProcessID> processIDs)
{
    if (!tap_->setProcesses(processIDs))
        return false;
    processIDs_ = std::move(processIDs);
    return true;
}

}  // namespace fadeloom
