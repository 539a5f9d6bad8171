// SPDX-License-Identifier: MIT
// What we use of login items, declared by us.
#pragma once

#include <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3
} API_AVAILABLE(macos(13.0));

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(13.0))
@interface SMAppService : NSObject
@property (class, readonly) SMAppService* mainAppService;
@property (readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;
@end

NS_ASSUME_NONNULL_END
