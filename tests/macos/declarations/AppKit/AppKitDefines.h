// SPDX-License-Identifier: MIT
// AppKit's export macros, declared by us.
#pragma once

#ifdef __cplusplus
#define APPKIT_EXTERN extern "C"
#else
#define APPKIT_EXTERN extern
#endif
