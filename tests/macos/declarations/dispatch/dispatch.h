// SPDX-License-Identifier: MIT
// What we use of dispatch queues, declared by us.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __OBJC__
#include <Foundation/NSObject.h>
@protocol OS_dispatch_queue <NSObject>
@end
typedef NSObject<OS_dispatch_queue>* dispatch_queue_t;
#else
typedef struct dispatch_queue_s* dispatch_queue_t;
#endif

typedef dispatch_queue_t dispatch_queue_attr_t;
typedef uint64_t dispatch_time_t;
typedef void (^dispatch_block_t)(void);
typedef unsigned int dispatch_qos_class_t;

#define DISPATCH_QUEUE_SERIAL ((dispatch_queue_attr_t)0)
#define DISPATCH_TIME_NOW 0ull
#define QOS_CLASS_UTILITY 0x11u

#ifdef __cplusplus
extern "C" {
#endif

extern struct dispatch_queue_s _dispatch_main_q;
#ifdef __OBJC__
#define dispatch_get_main_queue() ((__bridge dispatch_queue_t)(void*)&_dispatch_main_q)
#else
#define dispatch_get_main_queue() (&_dispatch_main_q)
#endif

dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(
    dispatch_queue_attr_t attributes, dispatch_qos_class_t quality, int relativePriority);
dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attributes);
#ifndef __OBJC__
void dispatch_release(dispatch_queue_t queue);
#endif
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t nanoseconds);

#ifdef __cplusplus
}
#endif
