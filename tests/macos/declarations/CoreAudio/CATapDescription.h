// SPDX-License-Identifier: MIT
// What we use of the description of a process tap, declared by us.
#pragma once

#include <CoreAudio/CoreAudio.h>
#include <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, CATapMuteBehavior) { CATapUnmuted = 0, CATapMuted = 1, CATapMutedWhenTapped = 2 };

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(12.0))
@interface CATapDescription : NSObject
- (instancetype)initStereoMixdownOfProcesses:(NSArray<NSNumber*>*)processObjectIDs;
@property (atomic, copy) NSString* name;
@property (atomic, copy) NSUUID* UUID;
@property (atomic, copy) NSArray<NSNumber*>* processes;
@property (atomic, getter=isPrivate, setter=setPrivate:) BOOL privateTap;
@property (atomic, getter=isMuted, setter=setMuteBehavior:) CATapMuteBehavior muteBehavior;
@end

NS_ASSUME_NONNULL_END
