// SPDX-License-Identifier: MIT
#include "platform/linux/SystemClock.h"

#include <ctime>

namespace fadeloom {

LocalTime SystemClock::localTime(std::chrono::system_clock::time_point moment) const
{
    // Rounded by us: towards zero, as `to_time_t` may do it, a moment before 1970 would get the second after it.
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
    const std::time_t count = seconds.count();
    std::tm local{};
    ::tzset();  // Which `localtime_r` leaves out once it knows a zone.
    ::localtime_r(&count, &local);
    return LocalTime{seconds + std::chrono::seconds{local.tm_gmtoff}};
}

}  // namespace fadeloom
