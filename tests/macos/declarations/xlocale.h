// SPDX-License-Identifier: MIT
// The platform's functions for a locale of one's own that the C library which we compile against does not have.
#pragma once

#include <locale.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

int snprintf_l(char* text, size_t size, locale_t locale, const char* format, ...);
int asprintf_l(char** text, locale_t locale, const char* format, ...);
int sscanf_l(const char* text, locale_t locale, const char* format, ...);

#ifdef __cplusplus
}
#endif
