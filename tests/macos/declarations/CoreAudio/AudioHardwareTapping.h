// SPDX-License-Identifier: MIT
// Making and removing process taps, declared by us.
#pragma once

#include <CoreAudio/CoreAudio.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __OBJC__
@class CATapDescription;
OSStatus AudioHardwareCreateProcessTap(CATapDescription* description, AudioObjectID* tap)
    API_AVAILABLE(macos(14.2));
#endif
OSStatus AudioHardwareDestroyProcessTap(AudioObjectID tap) API_AVAILABLE(macos(14.2));

#ifdef __cplusplus
}
#endif
