// SPDX-License-Identifier: MIT
// How to recognize the known call apps on Linux.
#pragma once

#include <span>
#include <string_view>

namespace fadeloom {

struct KnownCallApp {
    std::string_view name;
    // Desktop ids and Flatpak ids; the first represents the app.
    std::span<const std::string_view> bundleIDs;
    std::span<const std::string_view> sites;  // Hosts of its web app, subdomains included.
    std::span<const std::string_view> chromiumIDs;  // Identifiers of its web app in Chromium-based browsers.
};

[[nodiscard]] std::span<const KnownCallApp> callAppCatalogue();

}  // namespace fadeloom
