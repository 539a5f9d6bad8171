// SPDX-License-Identifier: MIT
// Bringing the program's windows in front of those of others. For Objective-C++ only.
#pragma once

#import <AppKit/AppKit.h>

namespace fadeloom {

/// The call's successor waits for the program in front to give way, which none does for one without a Dock icon.
inline void comeToFront()
{
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    [NSApp activateIgnoringOtherApps:YES];
#pragma clang diagnostic pop
}

}  // namespace fadeloom
