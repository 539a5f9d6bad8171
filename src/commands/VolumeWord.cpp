// SPDX-License-Identifier: MIT
#include "commands/VolumeWord.h"

#include "commands/NumberText.h"
#include "commands/PrintableText.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {

namespace {

// The starting point for a step up in decibels if the app is at 0: -60 dB.
constexpr float lowestAudible = 0.001F;

float factorOf(float decibels)
{
    return std::pow(10.0F, decibels / 20);
}

bool isSign(char byte)
{
    return byte == '+' || byte == '-';
}

bool takeSuffix(std::string_view& text, std::string_view suffix)
{
    if (!text.ends_with(suffix))
        return false;
    text.remove_suffix(suffix.size());
    return true;
}

}  // namespace

std::expected<VolumeWord, std::string> VolumeWord::parse(std::string_view word)
{
    const auto refused = [&] {
        return std::unexpected(
            "say a volume like 0.5, 50%, =-6dB, +5% or -3dB, not " + asWord(std::string(word)));
    };
    auto rest = word;
    const bool isLevel = rest.starts_with('=');
    if (isLevel)
        rest.remove_prefix(1);
    VolumeWord volume;
    float direction = 1;
    if (!rest.empty() && isSign(rest.front())) {
        direction = rest.front() == '-' ? -1 : 1;
        volume.isStep_ = !isLevel;
        rest.remove_prefix(1);
    } else if (!isLevel && !rest.empty() && isSign(rest.back())) {
        direction = rest.back() == '-' ? -1 : 1;
        volume.isStep_ = true;
        rest.remove_suffix(1);
    }
    if (takeSuffix(rest, "%"))
        volume.unit_ = Unit::percent;
    else if (takeSuffix(rest, "dB") || takeSuffix(rest, "db"))
        volume.unit_ = Unit::decibels;

    const bool isUnsigned = !rest.empty() && !isSign(rest.front());
    const auto number = isUnsigned ? numberOf(std::string(rest)) : std::nullopt;
    if (!number)
        return refused();
    volume.amount_ = direction * *number;
    if (!volume.isStep_ && volume.unit_ != Unit::decibels && volume.amount_ < 0)
        return refused();
    return volume;
}

float VolumeWord::from(float present, float limit) const
{
    if (!isStep_)
        return unit_ == Unit::decibels ? factorOf(amount_) : unit_ == Unit::percent ? amount_ / 100 : amount_;
    if (unit_ == Unit::decibels) {
        const float begin = amount_ > 0 ? std::max(present, lowestAudible) : present;
        return std::clamp(begin * factorOf(amount_), 0.0F, limit);
    }
    const float step = unit_ == Unit::percent ? amount_ / 100 : amount_;
    // Rounded to a tenth of a percent, so that steps up and down cancel out.
    return std::clamp(std::round((present + step) * 1000) / 1000, 0.0F, limit);
}

}  // namespace fadeloom
