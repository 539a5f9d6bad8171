// SPDX-License-Identifier: MIT
// The product's addresses on the web.
#pragma once

#include <optional>
#include <string>

namespace fadeloom {

/// The URL of the product's web page.
[[nodiscard]] std::string webPage();

/// The base URL of the update feed and of the download page: the built-in one, or that of the environment variable
/// FADELOOM_UPDATE_ENDPOINT. nullopt in a build without the update check.
[[nodiscard]] std::optional<std::string> updateEndpoint();

}  // namespace fadeloom
