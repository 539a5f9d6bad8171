// SPDX-License-Identifier: MIT
#include "platform/macos/AppKitDialogs.h"

#include "platform/macos/Activation.h"
#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include <algorithm>
#include <utility>

namespace fadeloom {
namespace {

/// Shows a panel for a single choice in front of other programs. `done` gets the location, or nil if cancelled.
void open(NSOpenPanel* panel, const std::filesystem::path& start, std::function<void(NSURL*)> done)
{
    panel.allowsMultipleSelection = NO;
    panel.directoryURL = nsURL(start);
    comeToFront();
    [panel beginWithCompletionHandler:^(
        NSModalResponse response) { done(response == NSModalResponseOK ? panel.URLs.firstObject : nil); }];
}

/// A message that was closed other than with its buttons counts as its last one.
std::size_t buttonOf(NSModalResponse response, std::size_t count)
{
    const std::size_t last = count == 0 ? 0 : count - 1;
    if (response < NSAlertFirstButtonReturn)
        return last;
    return std::min(static_cast<std::size_t>(response - NSAlertFirstButtonReturn), last);
}

}  // namespace

void AppKitDialogs::chooseFolder(
    const std::filesystem::path& start, const std::string& prompt, FolderChosen done)
{
    @autoreleasepool {
        NSOpenPanel* panel = [NSOpenPanel openPanel];
        panel.canChooseDirectories = YES;
        panel.canChooseFiles = NO;
        panel.canCreateDirectories = YES;
        panel.prompt = nsText(prompt);
        open(panel, start, [done = std::move(done)](NSURL* chosen) { done(pathOf(chosen)); });
    }
}

void AppKitDialogs::chooseApplication(ApplicationChosen done)
{
    @autoreleasepool {
        NSOpenPanel* panel = [NSOpenPanel openPanel];
        panel.canChooseDirectories = NO;
        panel.canChooseFiles = YES;
        panel.allowedContentTypes = @[ UTTypeApplicationBundle ];
        open(panel, "/Applications", [done = std::move(done)](NSURL* chosen) {
            NSBundle* bundle = chosen == nil ? nil : [NSBundle bundleWithURL:chosen];
            done(textOf(bundle.bundleIdentifier));
        });
    }
}

void AppKitDialogs::showAlert(const Alert& alert, std::function<void(std::size_t button)> answered)
{
    @autoreleasepool {
        NSAlert* shown = [[NSAlert alloc] init];
        shown.messageText = nsText(alert.title);
        shown.informativeText = nsText(alert.text);
        for (const std::string& title : alert.buttons)
            [shown addButtonWithTitle:nsText(title)];
        comeToFront();
        answered(buttonOf([shown runModal], alert.buttons.size()));
    }
}

}  // namespace fadeloom
