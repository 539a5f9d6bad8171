// SPDX-License-Identifier: MIT
// Addresses of the product's web server.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// The host name of an address, without a port; empty when it has none.
[[nodiscard]] std::string hostName(std::string_view url);

/// The address of a page: `path` begins with a slash, and `base` may end with one.
[[nodiscard]] std::string pageURL(std::string_view base, std::string_view path);

}  // namespace fadeloom
