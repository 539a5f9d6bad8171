// SPDX-License-Identifier: MIT
// Lists and dictionaries as tests make and read them.
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

/// A value as text: strings as they are, truths as yes and no, lists in [], dictionaries in {} in the order given.
std::string described(id value);

}  // namespace doubles
