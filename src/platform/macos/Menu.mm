// SPDX-License-Identifier: MIT
#include "platform/macos/Menu.h"

#include "platform/macos/Action.h"
#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>

namespace fadeloom {
namespace {

NSMenuItem* itemOf(const StatusMenuEntry& entry)
{
    if (entry.isSeparator())
        return [NSMenuItem separatorItem];
    NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:nsText(entry.title)
                                                  action:@selector(act:)
                                           keyEquivalent:nsText(entry.key)];
    FadeloomAction* action = [[FadeloomAction alloc] initWithFunction:entry.action];
    item.target = action;
    item.representedObject = action;  // Retained, unlike the target.
    item.state = entry.isChecked ? NSControlStateValueOn : NSControlStateValueOff;
    return item;
}

}  // namespace

NSMenu* nsMenu(const StatusMenu& entries)
{
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    for (const StatusMenuEntry& entry : entries)
        [menu addItem:itemOf(entry)];
    return menu;
}

}  // namespace fadeloom
