// SPDX-License-Identifier: MIT
// Where an address of CoreFoundation points, for doubles in C++.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <string>

namespace doubles {

std::string urlPath(CFURLRef location);

}  // namespace doubles
