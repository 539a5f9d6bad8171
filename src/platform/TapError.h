// SPDX-License-Identifier: MIT
// Why the sound of some processes cannot be captured.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace fadeloom {

/// One of a fixed set of texts, which the panel translates; any other does not compile.
template <const auto& texts>
class KnownText {
public:
    constexpr KnownText() = default;
    template <std::size_t size>
    consteval KnownText(
        const char (&words)[size])  // NOLINT(google-explicit-constructor): reads as the text it is.
        : words_(*std::ranges::find(texts, std::string_view(words)))
    {
    }

    /// In English.
    [[nodiscard]] constexpr std::string_view words() const { return words_; }

    friend bool operator==(const KnownText&, const KnownText&) = default;

private:
    std::string_view words_{};
};

/// What may be done when an error comes.
inline constexpr std::array<std::string_view, 7> tapSteps = {"Create process tap", "Unsupported tap format",
    "Create aggregate device", "Create IOProc", "Start device", "Create recording file",
    "Set recording format"};
/// What may be wrong where the system has no code for it.
inline constexpr std::array<std::string_view, 5> tapReasons = {"no PipeWire server is running",
    "the device is gone", "a process is gone", "too few of the files that may be open are left",
    "PipeWire made no node for it"};

using TapStep = KnownText<tapSteps>;
using TapReason = KnownText<tapReasons>;

struct TapError {
    TapStep step{};
    std::int32_t status = 0;  // The system's own code, where it gives codes.
    TapReason reason{};  // Empty where it does.

    /// A sentence in English, without a full stop.
    [[nodiscard]] std::string description() const
    {
        const std::string failed = std::string(step.words()) + " failed";
        return reason.words().empty() ? failed + " (OSStatus " + std::to_string(status) + ")"
                                      : failed + ": " + std::string(reason.words());
    }

    friend bool operator==(const TapError&, const TapError&) = default;
};

}  // namespace fadeloom
