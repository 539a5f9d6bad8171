// SPDX-License-Identifier: MIT
#include "shell/WebAddress.h"

namespace fadeloom {

std::string hostName(std::string_view url)
{
    constexpr std::string_view separator = "://";
    const auto scheme = url.find(separator);
    if (scheme == std::string_view::npos)
        return {};
    auto authority = url.substr(scheme + separator.size());
    authority = authority.substr(0, authority.find_first_of("/?#"));
    if (const auto user = authority.rfind('@'); user != std::string_view::npos)
        authority.remove_prefix(user + 1);
    return std::string(authority.substr(0, authority.find(':')));
}

std::string pageURL(std::string_view base, std::string_view path)
{
    while (base.ends_with('/'))
        base.remove_suffix(1);
    return std::string(base) + std::string(path);
}

}  // namespace fadeloom
