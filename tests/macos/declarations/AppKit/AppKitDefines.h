// SPDX-License-Identifier: MIT
// How AppKit declares what it exports, declared by us.
#pragma once

#ifdef __cplusplus
#define APPKIT_EXTERN extern "C"
#else
#define APPKIT_EXTERN extern
#endif
