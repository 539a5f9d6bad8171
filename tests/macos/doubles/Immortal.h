// SPDX-License-Identifier: MIT
// What is never freed: texts in the sources, and queues.
#pragma once

#import <Foundation/Foundation.h>

@interface ImmortalObject : NSObject
@end

/// A text in the sources, laid out by the compiler.
@interface ImmortalText : NSString
@end
