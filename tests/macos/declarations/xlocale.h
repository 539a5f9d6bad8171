// SPDX-License-Identifier: MIT
// The platform's functions for explicit locales that the C library used for compiling lacks.
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
