// SPDX-License-Identifier: MIT
#include "app/Version.h"

namespace fadeloom {

std::string_view programVersion()
{
    return FADELOOM_VERSION;
}

std::string_view programBuild()
{
    return FADELOOM_BUILD;
}

}  // namespace fadeloom
