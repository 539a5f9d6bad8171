// SPDX-License-Identifier: MIT
#include "platform/macos/StandardUserDefaults.h"

#include "platform/macos/NSText.h"

namespace fadeloom {

std::optional<std::vector<std::string>> StandardUserDefaults::stringList(const std::string& key) const
{
    @autoreleasepool {
        NSString* domain = NSBundle.mainBundle.bundleIdentifier;
        if (domain == nil)  // A bare executable has no domain of its own.
            return std::nullopt;
        id value = [NSUserDefaults.standardUserDefaults persistentDomainForName:domain][nsText(key)];
        if (![value isKindOfClass:NSArray.class])
            return std::nullopt;
        std::vector<std::string> texts;
        for (id each in static_cast<NSArray*>(value)) {
            if (![each isKindOfClass:NSString.class])
                return std::nullopt;
            texts.push_back(textOf(static_cast<NSString*>(each)).value_or(""));
        }
        return texts;
    }
}

void StandardUserDefaults::setStringList(const std::string& key, const std::vector<std::string>& values)
{
    @autoreleasepool {
        NSMutableArray<NSString*>* texts = [NSMutableArray array];
        for (const std::string& value : values)
            [texts addObject:nsText(value)];
        [NSUserDefaults.standardUserDefaults setObject:texts forKey:nsText(key)];
    }
}

void StandardUserDefaults::remove(const std::string& key)
{
    @autoreleasepool {
        [NSUserDefaults.standardUserDefaults removeObjectForKey:nsText(key)];
    }
}

}  // namespace fadeloom
