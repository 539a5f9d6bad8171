// SPDX-License-Identifier: MIT
// Arbitrary bytes as a settings file: they are rejected with a message, or yield a record whose values are within their
// ranges and that round-trips.
#include "settings/SettingsJson.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

bool isWithin(float value, float low, float high)
{
    return value >= low && value <= high;
}

void checkRanges(const fadeloom::SettingsData& settings)
{
    require(std::ranges::count(fadeloom::volumeLimits, settings.volumeLimit) == 1, "the limit can be chosen");
    require(isWithin(settings.focus.duckLevel, 0, 1), "the duck level is in its range");
    for (const auto& [bundleID, app] : settings.apps) {
        require(isWithin(app.volume, 0, settings.volumeLimit), "a volume is within the limit");
        require(isWithin(app.eqPreamp, -12, 12), "a preamp is in its range");
        for (const float gain : app.eqGains)
            require(isWithin(gain, -12, 12), "a gain is in its range");
    }
    for (const auto& preset : settings.userPresets) {
        require(preset.gains.size() == 10, "a preset has ten gains");
        for (const float gain : preset.gains)
            require(std::isfinite(gain), "a preset's gain is finite");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto settings =
        fadeloom::decodeSettings(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!settings) {
        require(!settings.error().description.empty(), "a refusal has words");
        return 0;
    }
    checkRanges(*settings);
    require(fadeloom::decodeSettings(fadeloom::encodeSettings(*settings)) == *settings,
        "what is written is read back");
    return 0;
}
