// SPDX-License-Identifier: MIT
// The platform versions queried by libraries, declared by us.
#pragma once

#define __MAC_10_14 101400
#define __MAC_10_15 101500
#define __MAC_11_0 110000
#define __MAC_12_0 120000
#define __MAC_13_0 130000
#define __MAC_14_0 140000
#define __MAC_OS_X_VERSION_MIN_REQUIRED __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
#define __MAC_OS_X_VERSION_MAX_ALLOWED 150000
