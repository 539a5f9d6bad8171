// SPDX-License-Identifier: MIT
// By what the well-known call apps are known again on Linux.
#pragma once

#include <span>
#include <string_view>

namespace fadeloom {

struct KnownCallApp {
    std::string_view name;
    // Desktop ids and Flatpak ids; the first stands for the app.
    std::span<const std::string_view> bundleIDs;
    std::span<const std::string_view> sites;  // Of its web app: hosts, their subdomains included.
    std::span<const std::string_view> chromiumIDs;  // Of its web app, as browsers of Chromium's kind name it.
};

[[nodiscard]] std::span<const KnownCallApp> callAppCatalogue();

}  // namespace fadeloom
