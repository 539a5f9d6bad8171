// SPDX-License-Identifier: MIT
// The contents of the update feed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fadeloom {

struct RemoteVersion {
    std::string version;  // For display, such as "1.4".
    std::int64_t build = 0;  // The number that is compared.

    friend bool operator==(const RemoteVersion&, const RemoteVersion&) = default;
};

/// Parses the feed: a JSON object with a string `version` and an integer `build`. Other keys are ignored; nullopt for
/// anything else. Accepts arbitrary bytes.
[[nodiscard]] std::optional<RemoteVersion> decodeRemoteVersion(std::string_view feed);

}  // namespace fadeloom
