// SPDX-License-Identifier: MIT
#include "platform/linux/SystemClock.h"

#include <ctime>

namespace fadeloom {

LocalTime SystemClock::localTime(std::chrono::system_clock::time_point moment) const
{
    // Rounded down explicitly: `to_time_t` may round towards zero, which would give a moment before 1970 the next
    // second.
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
    const std::time_t count = seconds.count();
    std::tm local{};
    ::tzset();  // Which `localtime_r` omits once it knows a zone.
    ::localtime_r(&count, &local);
    return LocalTime{seconds + std::chrono::seconds{local.tm_gmtoff}};
}

}  // namespace fadeloom
