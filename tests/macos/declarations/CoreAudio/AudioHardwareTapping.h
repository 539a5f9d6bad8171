// SPDX-License-Identifier: MIT
// Creating and destroying process taps, declared by us.
#pragma once

#include <CoreAudio/CoreAudio.h>

CF_ASSUME_NONNULL_BEGIN

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __OBJC__
@class CATapDescription;
OSStatus AudioHardwareCreateProcessTap(CATapDescription* _Nullable description, AudioObjectID* tap)
    API_AVAILABLE(macos(14.2));
#endif
OSStatus AudioHardwareDestroyProcessTap(AudioObjectID tap) API_AVAILABLE(macos(14.2));

#ifdef __cplusplus
}
#endif

CF_ASSUME_NONNULL_END
