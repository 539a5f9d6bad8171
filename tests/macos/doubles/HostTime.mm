// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/AudioWorld.h"

#include <CoreAudio/HostTime.h>

// The host's ticks are those of Apple silicon: 24 MHz.
UInt64 AudioGetCurrentHostTime(void)
{
    return static_cast<UInt64>(doubles::AudioWorld::current().hostTime.count()) * 3 / 125;
}

UInt64 AudioConvertHostTimeToNanos(UInt64 hostTime)
{
    return hostTime * 125 / 3;
}
