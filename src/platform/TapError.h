// SPDX-License-Identifier: MIT
// Why a tap cannot be created.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace fadeloom {

/// One of a fixed set of texts, which the panel translates; others do not compile.
template <const auto& texts>
class KnownText {
public:
    constexpr KnownText() = default;
    template <std::size_t size>
    consteval KnownText(
        const char (&words)[size])  // NOLINT(google-explicit-constructor): reads as the text that it is.
        : words_(*std::ranges::find(texts, std::string_view(words)))
    {
    }

    /// In English.
    [[nodiscard]] constexpr std::string_view words() const { return words_; }

    friend bool operator==(const KnownText&, const KnownText&) = default;

private:
    std::string_view words_{};
};

/// The recoveries for an error.
inline constexpr std::array<std::string_view, 8> tapSteps = {"Create process tap", "Unsupported tap format",
    "Create aggregate device", "Create IOProc", "Start device", "Switch off the microphone",
    "Create recording file", "Set recording format"};
/// The reason, if the system provides no code. "%1" is the placeholder for a name or a number.
inline constexpr std::array<std::string_view, 6> tapReasons = {"no PipeWire server is running",
    "the device is gone", "a process is gone", "of %1 files that may be open, too few are left",
    "PipeWire made no node for it", "the one of %1 would listen while apps play there"};

using TapStep = KnownText<tapSteps>;
using TapReason = KnownText<tapReasons>;

struct TapError {
    TapStep step{};
    std::int32_t status = 0;  // The system's error code, if there is one.
    TapReason reason{};  // Empty if there is one.
    std::string detail{};  // Replaces the reason's placeholder.

    /// A sentence in English, without a full stop.
    [[nodiscard]] std::string description() const
    {
        const std::string failed = std::string(step.words()) + " failed";
        if (reason.words().empty())
            return failed + " (OSStatus " + std::to_string(status) + ")";
        std::string words(reason.words());
        if (const auto place = words.find("%1"); place != std::string::npos)
            words.replace(place, 2, detail);
        return failed + ": " + words;
    }

    friend bool operator==(const TapError&, const TapError&) = default;
};

}  // namespace fadeloom
