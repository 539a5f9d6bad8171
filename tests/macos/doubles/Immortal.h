// SPDX-License-Identifier: MIT
// Objects that are never freed: string literals, and queues.
#pragma once

#import <Foundation/Foundation.h>

@interface ImmortalObject : NSObject
@end

/// A string literal, as laid out by the compiler.
@interface ImmortalText : NSString
@end
