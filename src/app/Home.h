// SPDX-License-Identifier: MIT
// Platform-specific classes: one folder per platform, which declares the same types in files of the same names.
#pragma once

#if defined(__APPLE__) || defined(FADELOOM_AT_HOME_ON_MACOS)
// IWYU pragma: begin_exports
#include "app/macos/HomeDesktop.h"
#include "app/macos/HomeGuardian.h"
#include "app/macos/HomeInstance.h"
#include "app/macos/HomeMainLoop.h"
#include "app/macos/HomePanel.h"
#include "app/macos/HomePlatform.h"
#include "app/macos/HomeWorkspace.h"
// IWYU pragma: end_exports
#else
// IWYU pragma: begin_exports
#include "app/linux/HomeDesktop.h"
#include "app/linux/HomeGuardian.h"
#include "app/linux/HomeInstance.h"
#include "app/linux/HomeMainLoop.h"
#include "app/linux/HomePanel.h"
#include "app/linux/HomePlatform.h"
#include "app/linux/HomeWorkspace.h"
// IWYU pragma: end_exports
#endif
