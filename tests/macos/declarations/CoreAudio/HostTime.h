// SPDX-License-Identifier: MIT
#pragma once

#include <CoreAudio/CoreAudioTypes.h>

#ifdef __cplusplus
extern "C" {
#endif

UInt64 AudioGetCurrentHostTime(void);
UInt64 AudioConvertHostTimeToNanos(UInt64 hostTime);

#ifdef __cplusplus
}
#endif
