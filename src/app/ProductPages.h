// SPDX-License-Identifier: MIT
// Where the product is found on the web.
#pragma once

#include <optional>
#include <string>

namespace fadeloom {

/// The address of the product's web page.
[[nodiscard]] std::string webPage();

/// The base address of the update feed and of the download page: that of the build, or the one in the environment
/// variable FADELOOM_UPDATE_ENDPOINT. Absent in a build that does not look for updates.
[[nodiscard]] std::optional<std::string> updateEndpoint();

}  // namespace fadeloom
