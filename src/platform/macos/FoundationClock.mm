// SPDX-License-Identifier: MIT
#include "platform/macos/FoundationClock.h"

#import <Foundation/Foundation.h>

namespace fadeloom {

LocalTime FoundationClock::localTime(std::chrono::system_clock::time_point moment) const
{
    @autoreleasepool {
        const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
        NSDate* date = [NSDate dateWithTimeIntervalSince1970:static_cast<double>(seconds.count())];
        return LocalTime(
            seconds + std::chrono::seconds([NSTimeZone.localTimeZone secondsFromGMTForDate:date]));
    }
}

}  // namespace fadeloom
