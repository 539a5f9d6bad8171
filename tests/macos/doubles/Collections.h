// SPDX-License-Identifier: MIT
// Creates and reads lists and dictionaries in tests.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <utility>
#include <vector>

@interface NSArray ()
@property (readonly) const std::vector<id>& elements;
@end

@interface NSDictionary ()
@property (readonly) const std::vector<std::pair<NSString*, id>>& entries;
- (void)setEntry:(id)value forKey:(NSString*)key;
- (void)removeEntryForKey:(NSString*)key;
@end

namespace doubles {

/// A value as text: strings verbatim, booleans as yes and no, lists in [], dictionaries in {} in insertion order.
std::string described(id value);

}  // namespace doubles
