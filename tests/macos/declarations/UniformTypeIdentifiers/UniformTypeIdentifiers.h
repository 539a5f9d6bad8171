// SPDX-License-Identifier: MIT
// What we use of file types, declared by us.
#pragma once

#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(11.0))
@interface UTType : NSObject
@property (readonly, copy) NSString* identifier;
@end

#ifdef __cplusplus
extern "C"
#else
extern
#endif
    UTType* const UTTypeApplicationBundle API_AVAILABLE(macos(11.0));

NS_ASSUME_NONNULL_END
