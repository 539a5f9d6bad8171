// SPDX-License-Identifier: MIT
// URLs on the product's web server.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// The host name of a URL, without the port; empty if it has none.
[[nodiscard]] std::string hostName(std::string_view url);

/// The URL of a page: `path` begins with a slash, and `base` may end with one.
[[nodiscard]] std::string pageURL(std::string_view base, std::string_view path);

}  // namespace fadeloom
