// SPDX-License-Identifier: MIT
// This machine, as the program needs it: HomeDesktop, HomeFolders, HomeInstance, HomeLog,
// HomePanel, HomePlatform, HomeWorkspace.
#pragma once

#if defined(__APPLE__) || defined(FADELOOM_AT_HOME_ON_MACOS)
#include "app/HomeMacOS.h"  // IWYU pragma: export
#else
#include "app/HomeLinux.h"  // IWYU pragma: export
#endif
