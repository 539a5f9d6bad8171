// SPDX-License-Identifier: MIT
// What we use of the unified log, declared by us. The platform's macros parse formats at compile time; ours pass them
// to one function, which the doubles define.
#pragma once

typedef struct os_log_s* os_log_t;
typedef unsigned char os_log_type_t;

#define OS_LOG_TYPE_DEFAULT ((os_log_type_t)0x00)
#define OS_LOG_TYPE_ERROR ((os_log_type_t)0x10)

#ifdef __cplusplus
extern "C" {
#endif

os_log_t os_log_create(const char* subsystem, const char* category);
void fadeloomLogWithType(os_log_t log, os_log_type_t type, const char* format, ...);

#ifdef __cplusplus
}
#endif

#define os_log_with_type(log, type, ...) fadeloomLogWithType(log, type, __VA_ARGS__)
