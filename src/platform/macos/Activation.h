// SPDX-License-Identifier: MIT
// Activates the program, in front of others. For Objective-C++ only.
#pragma once

#import <AppKit/AppKit.h>

namespace fadeloom {

/// The replacement for this call requires the active program to yield, which none does for one without a Dock icon.
inline void comeToFront()
{
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    [NSApp activateIgnoringOtherApps:YES];
#pragma clang diagnostic pop
}

}  // namespace fadeloom
