// SPDX-License-Identifier: MIT
// What the update feed says.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fadeloom {

struct RemoteVersion {
    std::string version;  // For the user's eyes, as "1.4".
    std::int64_t build = 0;  // What counts.

    friend bool operator==(const RemoteVersion&, const RemoteVersion&) = default;
};

/// Reads the feed: a JSON object with a text `version` and an integer `build`. Other keys do not count; anything else
/// cannot be read, and is absent. Any bytes may come in.
[[nodiscard]] std::optional<RemoteVersion> decodeRemoteVersion(std::string_view feed);

}  // namespace fadeloom
