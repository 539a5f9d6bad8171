// SPDX-License-Identifier: MIT
#include "app/ProductPages.h"

#include <cstdlib>

namespace fadeloom {

std::string webPage()
{
    return FADELOOM_WEB_PAGE;
}

std::optional<std::string> updateEndpoint()
{
    if (!FADELOOM_UPDATE_CHECK)
        return std::nullopt;
    const char* const named = std::getenv("FADELOOM_UPDATE_ENDPOINT");
    return named != nullptr && *named != '\0' ? named : FADELOOM_UPDATE_ENDPOINT;
}

}  // namespace fadeloom
