// SPDX-License-Identifier: MIT
// The system's unfair lock, declared by us.
#pragma once

#include <stdbool.h>
#include <stdint.h>

typedef struct os_unfair_lock_s {
    uint32_t _os_unfair_lock_opaque;
} os_unfair_lock, *os_unfair_lock_t;

#define OS_UNFAIR_LOCK_INIT ((os_unfair_lock){0})

#ifdef __cplusplus
extern "C" {
#endif

void os_unfair_lock_lock(os_unfair_lock_t lock);
bool os_unfair_lock_trylock(os_unfair_lock_t lock);
void os_unfair_lock_unlock(os_unfair_lock_t lock);

#ifdef __cplusplus
}
#endif
