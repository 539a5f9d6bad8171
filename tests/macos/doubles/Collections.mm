// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/Collections.h"

#include "tests/macos/doubles/Runtime.h"

#include <algorithm>

using doubles::crash;

@implementation NSArray {
@protected
    std::vector<id> elements_;
}

+ (instancetype)array
{
    return [[self alloc] init];
}
+ (instancetype)arrayWithObjects:(const id _Nonnull __unsafe_unretained[])objects count:(NSUInteger)count
{
    NSArray* made = [[self alloc] init];
    made->elements_.assign(objects, objects + count);
    return made;
}
- (const std::vector<id>&)elements
{
    return elements_;
}
- (NSUInteger)count
{
    return elements_.size();
}
- (id)firstObject
{
    return elements_.empty() ? nil : elements_.front();
}
- (id)objectAtIndexedSubscript:(NSUInteger)index
{
    return elements_.at(index);
}
- (id)copy
{
    // A mutable list returns an immutable copy.
    return [NSArray arrayWithObjects:reinterpret_cast<const id __unsafe_unretained*>(elements_.data())
                               count:elements_.size()];
}
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained[])buffer
                                    count:(NSUInteger)count
{
    const NSUInteger first = state->state;
    const NSUInteger given = std::min(count, elements_.size() - first);
    for (NSUInteger i = 0; i < given; ++i)
        buffer[i] = elements_[first + i];
    state->state = first + given;
    state->itemsPtr = buffer;
    state->mutationsPtr = &state->extra[0];
    return given;
}

@end

@implementation NSMutableArray

- (void)addObject:(id)object
{
    if (object == nil)
        crash("nothing was added to a list");
    elements_.push_back(object);
}

@end

@implementation NSDictionary {
    std::vector<std::pair<NSString*, id>> entries_;
}

+ (instancetype)dictionaryWithObjects:(const id _Nonnull __unsafe_unretained[])objects
                              forKeys:(const id _Nonnull __unsafe_unretained[])keys
                                count:(NSUInteger)count
{
    NSDictionary* made = [[self alloc] init];
    for (NSUInteger i = 0; i < count; ++i) {
        if (objects[i] == nil || keys[i] == nil)
            crash("nothing was put into a dictionary");
        [made setEntry:objects[i] forKey:keys[i]];
    }
    return made;
}
- (const std::vector<std::pair<NSString*, id>>&)entries
{
    return entries_;
}
- (NSUInteger)count
{
    return entries_.size();
}
- (id)objectForKeyedSubscript:(id)key
{
    for (const auto& [name, value] : entries_)
        if ([name isEqualToString:key])
            return value;
    return nil;
}
- (void)setEntry:(id)value forKey:(NSString*)key
{
    [self removeEntryForKey:key];
    entries_.emplace_back(key, value);
}
- (void)removeEntryForKey:(NSString*)key
{
    std::erase_if(entries_, [key](const auto& entry) { return [entry.first isEqualToString:key]; });
}

@end

namespace doubles {

std::string described(id value)
{
    std::string text;
    if ([value isKindOfClass:NSString.class])
        return static_cast<NSString*>(value).UTF8String;
    if ([value isKindOfClass:NSNumber.class])
        return static_cast<NSNumber*>(value).boolValue ? "yes" : "no";
    if ([value isKindOfClass:NSArray.class]) {
        for (id each in static_cast<NSArray*>(value))
            text += (text.empty() ? "" : ", ") + described(each);
        return "[" + text + "]";
    }
    for (const auto& [key, each] : static_cast<NSDictionary*>(value).entries)
        text += (text.empty() ? "" : ", ") + described(key) + ": " + described(each);
    return "{" + text + "}";
}

}  // namespace doubles

extern "C" {

// The functions that the compiler calls for @[] and @{}.
NSArray* __NSArray0__ = [[NSArray alloc] init];
NSDictionary* __NSDictionary0__ = [[NSDictionary alloc] init];

const CFArrayCallBacks kCFTypeArrayCallBacks{};
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};

CFArrayRef CFArrayCreate(
    CFAllocatorRef, const void** values, CFIndex count, const CFArrayCallBacks* callBacks)
{
    if (callBacks != &kCFTypeArrayCallBacks)
        crash("a list that would not keep its elements");
    NSMutableArray* made = [[NSMutableArray alloc] init];
    for (CFIndex i = 0; i < count; ++i)
        [made addObject:(__bridge id)values[i]];
    return (__bridge_retained CFArrayRef)made;
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
    const CFDictionaryKeyCallBacks* keyCallBacks, const CFDictionaryValueCallBacks* valueCallBacks)
{
    if (keyCallBacks != &kCFTypeDictionaryKeyCallBacks || valueCallBacks != &kCFTypeDictionaryValueCallBacks)
        crash("a dictionary that would not keep its entries");
    NSDictionary* made = [[NSDictionary alloc] init];
    for (CFIndex i = 0; i < count; ++i) {
        if (values[i] == nullptr)
            crash("nothing was put into a dictionary");
        [made setEntry:(__bridge id)values[i] forKey:(__bridge NSString*)keys[i]];
    }
    return (__bridge_retained CFDictionaryRef)made;
}
}
