// SPDX-License-Identifier: MIT
#include "control/TapTexts.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace fadeloom {
namespace {

std::string processCountText(std::size_t count)
{
    return std::to_string(count) + " process(es)";
}

}  // namespace

std::string failureKey(std::span<const AudioProcessID> processIDs, std::string_view outputUID)
{
    std::string key = "[";
    for (const auto id : processIDs) {
        if (key.size() > 1)
            key += ", ";
        key += std::to_string(id);
    }
    return key.append("]|").append(outputUID);
}

std::string tapReadyText(std::string_view bundleID, const AppTap& tap)
{
    return std::string("tap ready: ").append(bundleID) + " → " + tap.outputUID() + " @ "
        + decimalText(tap.sampleRate()) + " Hz, " + processCountText(tap.processIDs().size())
        + ", mic streams off: " + std::to_string(tap.disabledInputs());
}

std::string tapUpdatedText(std::string_view bundleID, const AppTap& tap)
{
    return std::string("tap updated: ").append(bundleID) + ", " + processCountText(tap.processIDs().size());
}

std::string decimalText(double value)
{
    std::array<char, 400> buffer{};  // The longest double has 309 digits before the decimal point.
    const auto end = std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::fixed).ptr;
    std::string text(buffer.begin(), end);
    if (text.find('.') == std::string::npos)
        text += ".0";
    return text;
}

}  // namespace fadeloom
