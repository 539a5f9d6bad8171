// SPDX-License-Identifier: MIT
#include "control/LevelStore.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace fadeloom {

namespace {

constexpr float range = 60;  // Decibels.

}  // namespace

float meterPosition(float peak)
{
    constexpr float floor = 1e-6F;  // −120 dB: silence has no logarithm.
    const float decibels = 20 * std::log10(std::max(peak, floor));
    return std::clamp((decibels + range) / range, 0.0F, 1.0F);
}

float meterDecibels(float position)
{
    return position * range - range;
}

LevelStore::LevelStore(MainLoop& mainLoop, Provider provider)
    : mainLoop_(mainLoop)
    , provider_(std::move(provider))
{
}

void LevelStore::setWanted(bool isWanted)
{
    isWanted_ = isWanted;
    update();
}

Subscription LevelStore::want()
{
    ++wants_;
    update();
    return Subscription([this] {
        --wants_;
        update();
    });
}

void LevelStore::setEnabled(bool isEnabled)
{
    isEnabled_ = isEnabled;
    update();
}

void LevelStore::update()
{
    const bool shouldRun = (isWanted_ || wants_ > 0) && isEnabled_;
    if (shouldRun == isRunning())
        return;
    if (shouldRun) {
        (void)provider_();  // Discards peaks from while nobody watched.
        timer_ = mainLoop_.every(interval, [this] { tick(); });
    } else {
        timer_.reset();
        levels_.assign({});
    }
}

void LevelStore::tick()
{
    Levels next;
    for (const auto& [id, peak] : provider_()) {
        const auto current = levels_->find(id);
        const float sunken = current == levels_->end() ? 0 : decay * current->second;
        next.emplace(id, std::max(meterPosition(peak), sunken));
    }
    levels_.assign(std::move(next));
}

}  // namespace fadeloom
