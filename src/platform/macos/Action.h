// SPDX-License-Identifier: MIT
// A target for controls and menu items that calls a function. For Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include <functional>

/// Controls do not retain their targets.
@interface FadeloomAction : NSObject
- (instancetype)initWithFunction:(std::function<void()>)function;
- (void)act:(id)sender;
@end
