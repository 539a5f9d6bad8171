// SPDX-License-Identifier: MIT
// The path of a CoreFoundation URL, for doubles in C++.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <string>

namespace doubles {

std::string urlPath(CFURLRef location);

}  // namespace doubles
